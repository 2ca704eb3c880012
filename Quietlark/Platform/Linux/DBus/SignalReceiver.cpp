#include "Quietlark/Platform/Linux/DBus/SignalReceiver.h"

#include <QMetaObject>
#include <array>
#include <cstddef>

namespace quietlark {

namespace {

// The description of a class with the one slot `received(QDBusMessage)`, as Qt 6 lays it out. Later versions
// of Qt 6 read this revision too.
struct Names {
    std::array<unsigned, 10> offsetsAndSizes;
    char className[15];
    char slotName[9];
    char tag[1];
    char argumentType[13];
    char argumentName[8];
};

constexpr Names names = {{offsetof(Names, className), sizeof Names::className - 1, offsetof(Names, slotName),
                          sizeof Names::slotName - 1, offsetof(Names, tag), sizeof Names::tag - 1,
                          offsetof(Names, argumentType), sizeof Names::argumentType - 1,
                          offsetof(Names, argumentName), sizeof Names::argumentName - 1},
                         "SignalReceiver",
                         "received",
                         "",
                         "QDBusMessage",
                         "message"};

constexpr unsigned revision = 10;
constexpr unsigned headerLength = 14;
constexpr unsigned methodLength = 6;
constexpr unsigned unresolvedType = 0x80000000;
constexpr unsigned publicSlot = 0x0a;

constexpr std::array<unsigned, 24> description = {
    // class: revision, name, infos, methods, properties, enumerations, constructors, flags, signals
    revision, 0, 0, 0, 1, headerLength, 0, 0, 0, 0, 0, 0, 0, 0,
    // slot: name, count and place of its arguments, tag, flags, its first metatype
    1, 1, headerLength + methodLength, 2, publicSlot, 1,
    // result, type and name of the argument, end
    QMetaType::Void, unresolvedType | 3, 4, 0};

const std::array<const QtPrivate::QMetaTypeInterface*, 3> types = {
    nullptr, QtPrivate::qMetaTypeInterfaceForType<void>(),
    QtPrivate::qMetaTypeInterfaceForType<QDBusMessage>()};

const QMetaObject receiverMetaObject = {{QMetaObject::SuperData::link<QObject::staticMetaObject>(),
                                         names.offsetsAndSizes.data(), description.data(), nullptr, nullptr,
                                         types.data(), nullptr}};

} // namespace

const char* SignalReceiver::slot() { return "1received(QDBusMessage)"; }

const QMetaObject* SignalReceiver::metaObject() const { return &receiverMetaObject; }

int SignalReceiver::qt_metacall(QMetaObject::Call call, int id, void** arguments) {
    const int own = QObject::qt_metacall(call, id, arguments);
    if (own != 0 || call != QMetaObject::InvokeMetaMethod) {
        return own < 0 ? own : own - 1;
    }
    handler_(*static_cast<const QDBusMessage*>(arguments[1]));
    return -1;
}

} // namespace quietlark
