#include "Quietlark/Platform/Linux/DBus/SessionManagerHolds.h"

#include "Quietlark/Platform/Linux/DBus/SessionManagerNames.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <algorithm>

namespace quietlark {

namespace {

const QString inhibitorInterface = QStringLiteral("org.gnome.SessionManager.Inhibitor");

QString pathIn(const QDBusMessage& message) {
    return qvariant_cast<QDBusObjectPath>(message.arguments().value(0)).path();
}

} // namespace

SessionManagerHolds::SessionManagerHolds(std::shared_ptr<Bus> session) : link_(std::move(session)) {
    link_.onSignal({sessionManager::path, sessionManager::service, QStringLiteral("InhibitorAdded")},
                   [this](const QDBusMessage& message) {
                       if (link_.isOwner(sessionManager::service, message)) {
                           add(pathIn(message));
                       }
                   });
    link_.onSignal({sessionManager::path, sessionManager::service, QStringLiteral("InhibitorRemoved")},
                   [this](const QDBusMessage& message) {
                       if (link_.isOwner(sessionManager::service, message)) {
                           remove(pathIn(message));
                       }
                   });
    link_.followService(
        sessionManager::service, [this] { list(); },
        [this] {
            listed_ = false;
            inhibitors_.clear();
            tell();
        });
}

bool SessionManagerHolds::settled() const {
    const bool answered = listed_ && std::ranges::none_of(inhibitors_, [](const Inhibitor& inhibitor) {
                              return inhibitor.unanswered > 0;
                          });
    return answered || (link_.knows(sessionManager::service) && !link_.isRunning(sessionManager::service));
}

std::vector<DisplayHold> SessionManagerHolds::holds() const {
    std::vector<DisplayHold> result;
    for (const Inhibitor& inhibitor : inhibitors_) {
        if (inhibitor.unanswered == 0 && (inhibitor.flags & sessionManager::idleFlag) != 0) {
            result.push_back(inhibitor.hold);
        }
    }
    return result;
}

void SessionManagerHolds::list() {
    link_.call({sessionManager::service, sessionManager::path, sessionManager::service,
                QStringLiteral("GetInhibitors")},
               {}, [this](const QDBusMessage& reply) {
                   listed_ = true;
                   for (const auto& inhibitor :
                        qdbus_cast<QList<QDBusObjectPath>>(reply.arguments().value(0))) {
                       add(inhibitor.path());
                   }
               });
}

void SessionManagerHolds::add(const QString& inhibitorPath) {
    if (!link_.isRunning(sessionManager::service) ||
        std::ranges::count(inhibitors_, inhibitorPath, &Inhibitor::path) > 0) {
        return;
    }
    inhibitors_.push_back({.path = inhibitorPath});
    ask(inhibitorPath, QStringLiteral("GetAppId"), [](Inhibitor& inhibitor, const QVariant& appID) {
        inhibitor.hold.who.appID = appID.toString().toStdString();
        inhibitor.hold.who.name = inhibitor.hold.who.appID;
    });
    ask(inhibitorPath, QStringLiteral("GetReason"), [](Inhibitor& inhibitor, const QVariant& reason) {
        inhibitor.hold.reason = reason.toString().toStdString();
    });
    ask(inhibitorPath, QStringLiteral("GetFlags"),
        [](Inhibitor& inhibitor, const QVariant& flags) { inhibitor.flags = flags.toUInt(); });
}

void SessionManagerHolds::ask(const QString& inhibitorPath, const QString& member,
                              std::function<void(Inhibitor&, const QVariant&)> keep) {
    link_.call({sessionManager::service, inhibitorPath, inhibitorInterface, member}, {},
               [this, inhibitorPath, keep = std::move(keep)](const QDBusMessage& reply) {
                   const auto found = std::ranges::find(inhibitors_, inhibitorPath, &Inhibitor::path);
                   if (found == inhibitors_.end()) {
                       return;
                   }
                   if (reply.type() != QDBusMessage::ReplyMessage) {
                       remove(inhibitorPath);
                       return;
                   }
                   keep(*found, reply.arguments().value(0));
                   if (--found->unanswered == 0) {
                       tell();
                   }
               });
}

void SessionManagerHolds::remove(const QString& inhibitorPath) {
    std::erase_if(inhibitors_, [&](const Inhibitor& inhibitor) { return inhibitor.path == inhibitorPath; });
    tell();
}

} // namespace quietlark
