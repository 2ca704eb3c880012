#include "Quietlark/Platform/Linux/DBus/BusScreenLock.h"

#include "Quietlark/Platform/Linux/DBus/ScreenSavers.h"

#include <QProcess>

namespace quietlark {

namespace {

struct Door {
    QString service;
    QString path;
};

QList<Door> saverDoors() {
    QList<Door> doors;
    for (const QString& service : ScreenSavers::services()) {
        for (const QString& path : ScreenSavers::paths(service)) {
            doors.append({service, path});
        }
    }
    return doors;
}

} // namespace

void BusScreenLock::lockNow() { trySaver(0); }

void BusScreenLock::trySaver(qsizetype index) {
    static const QList<Door> doors = saverDoors();
    if (index >= doors.size()) {
        tryLogind();
        return;
    }
    const Door& door = doors[index];
    savers_.call({door.service, door.path, door.service, QStringLiteral("Lock")}, {},
                 [this, index](const QDBusMessage& reply) {
                     if (reply.type() != QDBusMessage::ReplyMessage) {
                         trySaver(index + 1);
                     }
                 });
}

void BusScreenLock::tryLogind() {
    if (logind_->path().isEmpty()) {
        runProgram();
        return;
    }
    manager_.call(
        {LogindSession::service, logind_->path(), LogindSession::sessionInterface, QStringLiteral("Lock")},
        {}, [](const QDBusMessage& reply) {
            if (reply.type() != QDBusMessage::ReplyMessage) {
                runProgram();
            }
        });
}

void BusScreenLock::runProgram() {
    QProcess::startDetached(QStringLiteral("xdg-screensaver"), {QStringLiteral("lock")});
}

} // namespace quietlark
