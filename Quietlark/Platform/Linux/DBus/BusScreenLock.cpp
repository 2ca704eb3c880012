#include "Quietlark/Platform/Linux/DBus/BusScreenLock.h"

#include "Quietlark/Platform/Linux/DBus/LogindNames.h"
#include "Quietlark/Platform/Linux/DBus/ScreenSavers.h"

#include <QProcess>

namespace quietlark {

void BusScreenLock::lockNow() { trySaver(0, 0); }

void BusScreenLock::trySaver(qsizetype index, qsizetype pathIndex) {
    if (index >= ScreenSavers::services().size()) {
        tryLogind();
        return;
    }
    const QString service = ScreenSavers::services()[index];
    const QStringList paths = ScreenSavers::paths(service);
    savers_.call({service, paths[pathIndex], service, QStringLiteral("Lock")}, {},
                 [this, index, pathIndex, last = paths.size() - 1](const QDBusMessage& reply) {
                     if (ScreenSavers::isElsewhere(reply) && pathIndex < last) {
                         trySaver(index, pathIndex + 1);
                     } else if (reply.type() != QDBusMessage::ReplyMessage) {
                         trySaver(index + 1, 0);
                     }
                 });
}

void BusScreenLock::tryLogind() {
    if (logind_->path().isEmpty()) {
        runProgram();
        return;
    }
    manager_.call({logind::service, logind_->path(), logind::sessionInterface, QStringLiteral("Lock")}, {},
                  [](const QDBusMessage& reply) {
                      if (reply.type() != QDBusMessage::ReplyMessage) {
                          runProgram();
                      }
                  });
}

void BusScreenLock::runProgram() {
    QProcess::startDetached(QStringLiteral("xdg-screensaver"), {QStringLiteral("lock")});
}

} // namespace quietlark
