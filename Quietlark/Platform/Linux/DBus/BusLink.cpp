#include "Quietlark/Platform/Linux/DBus/BusLink.h"

#include <QDBusError>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

namespace quietlark {

namespace {

constexpr int answerMilliseconds = 5000;

const QString busName = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");

/// Qt never answers what is asked on a connection that isn't there.
QDBusPendingCall send(const QDBusConnection& connection, const QDBusMessage& message) {
    return connection.isConnected()
               ? connection.asyncCall(message, answerMilliseconds)
               : QDBusPendingCall::fromError(QDBusError(QDBusError::Disconnected, QStringLiteral("no bus")));
}

QVariant firstArgument(const QDBusMessage& message) { return message.arguments().value(0); }

} // namespace

BusLink::~BusLink() {
    for (const auto& subscription : subscriptions_) {
        bus_->subscriptions_.erase(subscription);
    }
    for (const auto& observer : observers_) {
        bus_->observers_.erase(observer);
    }
}

void BusLink::call(const BusMethod& method, const QVariantList& arguments, Answer answer) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(method.service, method.path, method.interface, method.member);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(send(bus_->connection(), message), &context_);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context_,
                     [answer = std::move(answer)](QDBusPendingCallWatcher* finished) {
                         finished->deleteLater();
                         answer(finished->reply());
                     });
}

void BusLink::getProperty(const BusMethod& property, std::function<void(const QVariant&)> answer) {
    const BusMethod get = {property.service, property.path, QStringLiteral("org.freedesktop.DBus.Properties"),
                           QStringLiteral("Get")};
    call(get, {property.interface, property.member}, [answer = std::move(answer)](const QDBusMessage& reply) {
        answer(qvariant_cast<QDBusVariant>(firstArgument(reply)).variant());
    });
}

void BusLink::onSignal(const BusSignal& signal, SignalReceiver::Handler handler) {
    bus_->subscriptions_.push_back({signal, std::make_unique<SignalReceiver>(std::move(handler))});
    subscriptions_.push_back(std::prev(bus_->subscriptions_.end()));
    if (bus_->isConnected()) {
        bus_->attach(bus_->subscriptions_.back());
    }
}

void BusLink::onConnection(std::function<void()> came, std::function<void()> went) {
    if (bus_->isConnected()) {
        QMetaObject::invokeMethod(&context_, came, Qt::QueuedConnection);
    }
    bus_->observers_.push_back({std::move(came), std::move(went)});
    observers_.push_back(std::prev(bus_->observers_.end()));
}

void BusLink::followService(const QString& name, std::function<void()> came, std::function<void()> went) {
    services_[name] = {std::nullopt, std::move(came), std::move(went)};
    onSignal({busPath, busName, QStringLiteral("NameOwnerChanged"), {name}},
             [this, name](const QDBusMessage& message) {
                 setOwner(name, message.arguments().value(2).toString());
             });
    const auto ask = [this, name] { askForOwner(name); };
    const auto lost = [this, name] { setOwner(name, {}); };
    onConnection(ask, lost);
}

void BusLink::askForOwner(const QString& name) {
    call({busName, busPath, busName, QStringLiteral("GetNameOwner")}, {name},
         [this, name](const QDBusMessage& reply) {
             setOwner(name, firstArgument(reply).toString());
             if (QDBusError(reply).type() == QDBusError::NoReply && bus_->isConnected()) {
                 askForOwner(name); // the bus stands still: it will answer one day
             }
         });
}

void BusLink::setOwner(const QString& name, const QString& told) {
    // An error's first argument is its text, which is no unique name.
    const QString owner = told.startsWith(u':') ? told : QString();
    Service& service = services_[name];
    if (service.owner == owner) {
        return;
    }
    const bool hadOwner = service.owner && !service.owner->isEmpty();
    service.owner = owner;
    if (hadOwner) {
        service.went();
    }
    if (!owner.isEmpty()) {
        service.came();
    }
}

bool BusLink::knows(const QString& name) const {
    const auto found = services_.find(name);
    const bool known = found != services_.end() && found->second.owner.has_value();
    return known || (bus_->settled() && !bus_->isConnected());
}

bool BusLink::isRunning(const QString& name) const {
    const auto found = services_.find(name);
    return found != services_.end() && !found->second.owner.value_or(QString()).isEmpty();
}

bool BusLink::isOwner(const QString& name, const QDBusMessage& message) const {
    const auto found = services_.find(name);
    return found != services_.end() && found->second.owner == message.service();
}

} // namespace quietlark
