#include "Quietlark/Platform/Linux/DBus/AccessibilityBus.h"

#include <QDBusVariant>

#include <utility>

namespace quietlark {

namespace {

const QString readers = QStringLiteral("org.a11y.Bus");
const QString rootPath = QStringLiteral("/org/a11y/atspi/accessible/root");

QDBusMessage announcement(const QString& sentence) {
    constexpr int polite = 1;
    QDBusMessage signal = QDBusMessage::createSignal(rootPath, QStringLiteral("org.a11y.atspi.Event.Object"),
                                                     QStringLiteral("Announcement"));
    signal.setArguments({QString(), polite, 0, QVariant::fromValue(QDBusVariant(sentence)), QVariantMap()});
    return signal;
}

/// The connection on which the toolkit has told of its windows, so that what is said there is known to be said by
/// this program. There is one only while a screen reader runs.
QDBusConnection toolkitsConnection() { return QDBusConnection(QStringLiteral("a11y")); }

} // namespace

void AccessibilityBus::announce(const std::string& sentence) {
    const QString said = QString::fromStdString(sentence);
    if (const QDBusConnection toolkit = toolkitsConnection(); toolkit.isConnected()) {
        toolkit.send(announcement(said));
    } else if (isOnItsWay()) {
        waiting_.append(said);
    } else if (bus_ && bus_->connection().isConnected()) {
        bus_->connection().send(announcement(said));
    } else {
        waiting_ = {said};
        find();
    }
}

bool AccessibilityBus::isOnItsWay() const { return asking_ || (bus_ && !bus_->settled()); }

void AccessibilityBus::find() {
    asking_ = true;
    session_.call({readers, QStringLiteral("/org/a11y/bus"), readers, QStringLiteral("GetAddress")}, {},
                  [this](const QDBusMessage& reply) {
                      asking_ = false;
                      if (reply.type() == QDBusMessage::ReplyMessage) {
                          join(reply.arguments().value(0).toString());
                      }
                  });
}

void AccessibilityBus::join(const QString& address) {
    arrival_.reset();
    bus_ = std::make_shared<Bus>(address);
    arrival_ = std::make_unique<BusLink>(bus_);
    arrival_->onConnection([this] { sayWaiting(); }, [] {});
}

void AccessibilityBus::sayWaiting() {
    for (const QString& sentence : std::exchange(waiting_, {})) {
        bus_->connection().send(announcement(sentence));
    }
}

} // namespace quietlark
