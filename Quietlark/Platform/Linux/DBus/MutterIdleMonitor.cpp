#include "Quietlark/Platform/Linux/DBus/MutterIdleMonitor.h"

#include <algorithm>

namespace quietlark {

namespace {

const QString service = QStringLiteral("org.gnome.Mutter.IdleMonitor");
const QString path = QStringLiteral("/org/gnome/Mutter/IdleMonitor/Core");

constexpr double idleThreshold = 1; ///< seconds
constexpr double millisecondsPerSecond = 1000;

} // namespace

MutterIdleMonitor::MutterIdleMonitor(MainLoop& loop, std::shared_ptr<Bus> session)
    : loop_(loop), link_(std::move(session)) {
    link_.onSignal({path, service, QStringLiteral("WatchFired")}, [this](const QDBusMessage& message) {
        if (link_.isOwner(service, message)) {
            fired(message.arguments().value(0).toUInt());
        }
    });
    link_.followService(
        service, [this] { arm(); },
        [this] {
            known_ = false;
            idleWatch_.reset();
            activeWatch_.reset();
            idleSince_.reset();
        });
}

std::optional<double> MutterIdleMonitor::secondsSinceAnyInput() const {
    if (!known_) {
        return std::nullopt;
    }
    return idleSince_ ? std::max(0.0, loop_.uptime() - *idleSince_) : 0.0;
}

void MutterIdleMonitor::ask(const QString& member, const QVariantList& arguments,
                            std::function<void(const QVariant&)> answer) {
    link_.call({service, path, service, member}, arguments,
               [this, answer = std::move(answer)](const QDBusMessage& reply) {
                   if (reply.type() == QDBusMessage::ReplyMessage && link_.isRunning(service)) {
                       answer(reply.arguments().value(0));
                   }
               });
}

void MutterIdleMonitor::arm() {
    const auto threshold = static_cast<qulonglong>(idleThreshold * millisecondsPerSecond);
    ask(QStringLiteral("AddIdleWatch"), {threshold},
        [this](const QVariant& id) { idleWatch_ = id.toUInt(); });
    ask(QStringLiteral("GetIdletime"), {}, [this](const QVariant& milliseconds) {
        known_ = true;
        if (const double idle = milliseconds.toDouble() / millisecondsPerSecond; idle >= idleThreshold) {
            idleFor(idle);
        }
    });
}

void MutterIdleMonitor::idleFor(double seconds) {
    idleSince_ = loop_.uptime() - seconds;
    ask(QStringLiteral("AddUserActiveWatch"), {}, [this](const QVariant& id) { activeWatch_ = id.toUInt(); });
}

void MutterIdleMonitor::fired(Id id) {
    if (id == idleWatch_) {
        idleFor(idleThreshold);
    } else if (id == activeWatch_) {
        activeWatch_.reset();
        idleSince_.reset();
    }
}

} // namespace quietlark
