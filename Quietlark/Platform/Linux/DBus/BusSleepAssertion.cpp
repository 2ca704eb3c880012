#include "Quietlark/Platform/Linux/DBus/BusSleepAssertion.h"

#include "Quietlark/Platform/Linux/DBus/LogindNames.h"
#include "Quietlark/Platform/Linux/DBus/OwnName.h"
#include "Quietlark/Platform/Linux/DBus/SessionManagerNames.h"

#include <utility>

namespace quietlark {

namespace {

BusMethod managerMethod(const QString& member) {
    return {sessionManager::service, sessionManager::path, sessionManager::service, member};
}

} // namespace

void BusSleepAssertion::hold(const std::string& reason) {
    if (std::exchange(held_, true)) {
        return;
    }
    const QString why = QString::fromStdString(reason);
    const BusMethod inhibit = {logind::service, logind::path, logind::managerInterface,
                               QStringLiteral("Inhibit")};
    logind_.call(inhibit, {QStringLiteral("idle"), ownName::shown, why, QStringLiteral("block")},
                 [this, why, hold = ++hold_](const QDBusMessage& reply) {
                     if (!held_ || hold != hold_) {
                         return;
                     }
                     descriptor_ = qvariant_cast<QDBusUnixFileDescriptor>(reply.arguments().value(0));
                     if (!descriptor_.isValid()) {
                         askManager(why, hold);
                     }
                 });
}

void BusSleepAssertion::askManager(const QString& reason, int hold) {
    constexpr unsigned noWindow = 0;
    manager_.call(managerMethod(QStringLiteral("Inhibit")),
                  {ownName::service, noWindow, reason, sessionManager::idleFlag},
                  [this, hold](const QDBusMessage& reply) {
                      if (reply.type() != QDBusMessage::ReplyMessage) {
                          return;
                      }
                      const unsigned cookie = reply.arguments().value(0).toUInt();
                      if (held_ && hold == hold_) {
                          cookie_ = cookie;
                      } else {
                          uninhibit(cookie);
                      }
                  });
}

void BusSleepAssertion::release() {
    held_ = false;
    descriptor_ = QDBusUnixFileDescriptor();
    if (const auto cookie = std::exchange(cookie_, std::nullopt)) {
        uninhibit(*cookie);
    }
}

void BusSleepAssertion::uninhibit(unsigned cookie) {
    manager_.call(managerMethod(QStringLiteral("Uninhibit")), {cookie}, [](const QDBusMessage&) {});
}

} // namespace quietlark
