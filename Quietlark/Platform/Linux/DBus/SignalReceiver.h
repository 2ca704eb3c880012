#pragma once

#include <QDBusMessage>
#include <QObject>
#include <functional>
#include <utility>

namespace quietlark {

/// Takes a D-Bus signal into a function. QtDBus connects signals to slots by name only; this is the one
/// object that has such a slot, so that everything else can follow signals with functions.
class SignalReceiver : public QObject {
public:
    using Handler = std::function<void(const QDBusMessage&)>;

    explicit SignalReceiver(Handler handler) : handler_(std::move(handler)) {}

    /// What to pass as the slot to QDBusConnection::connect.
    static const char* slot();

    const QMetaObject* metaObject() const override;
    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

private:
    Handler handler_;
};

} // namespace quietlark
