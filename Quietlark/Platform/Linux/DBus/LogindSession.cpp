#include "Quietlark/Platform/Linux/DBus/LogindSession.h"

#include "Quietlark/Platform/Linux/DBus/LogindNames.h"

#include <QDBusObjectPath>
#include <QDBusVariant>
#include <unistd.h>

namespace quietlark {

namespace {

struct Way {
    QString member;
    QVariant argument;
};

/// A program that the user's service manager started belongs to no session: its environment may name one, and
/// "auto" is then the session of the user's display.
QList<Way> waysToOwnSession() {
    QList<Way> ways = {{QStringLiteral("GetSessionByPID"), QVariant(static_cast<unsigned>(getpid()))}};
    if (const QString named = qEnvironmentVariable("XDG_SESSION_ID"); !named.isEmpty()) {
        ways.append({QStringLiteral("GetSession"), named});
    }
    ways.append({QStringLiteral("GetSession"), QStringLiteral("auto")});
    return ways;
}

} // namespace

LogindSession::LogindSession(std::shared_ptr<Bus> system) : link_(std::move(system)) {
    link_.onSignal({logind::path, logind::managerInterface, QStringLiteral("PrepareForSleep")},
                   [this](const QDBusMessage& message) {
                       if (link_.isOwner(logind::service, message)) {
                           setPreparingForSleep(message.arguments().value(0).toBool());
                       }
                   });
    link_.followService(
        logind::service, [this] { find(); },
        [this] {
            found_ = false;
            setPreparingForSleep(false);
        });
}

bool LogindSession::settled() const {
    return found_ || (link_.knows(logind::service) && !link_.isRunning(logind::service));
}

void LogindSession::find() {
    link_.getProperty(
        {logind::service, logind::path, logind::managerInterface, QStringLiteral("PreparingForSleep")},
        [this](const QVariant& value) { setPreparingForSleep(value.toBool()); });
    tryWay(0);
}

void LogindSession::tryWay(qsizetype index) {
    const QList<Way> ways = waysToOwnSession();
    if (index >= ways.size()) {
        setPath({});
        return;
    }
    link_.call({logind::service, logind::path, logind::managerInterface, ways[index].member},
               {ways[index].argument}, [this, index](const QDBusMessage& reply) {
                   const auto path = qvariant_cast<QDBusObjectPath>(reply.arguments().value(0)).path();
                   reply.type() == QDBusMessage::ReplyMessage ? setPath(path) : tryWay(index + 1);
               });
}

void LogindSession::setPath(const QString& path) {
    path_ = path;
    if (path.isEmpty()) {
        found_ = true;
        setLocked(false);
        return;
    }
    if (path != followedPath_) {
        followedPath_ = path;
        link_.onSignal({path,
                        QStringLiteral("org.freedesktop.DBus.Properties"),
                        QStringLiteral("PropertiesChanged"),
                        {logind::sessionInterface}},
                       [this](const QDBusMessage&) { askLocked(); });
    }
    askLocked();
}

void LogindSession::askLocked() {
    link_.getProperty({logind::service, path_, logind::sessionInterface, QStringLiteral("LockedHint")},
                      [this](const QVariant& value) {
                          found_ = true;
                          if (value.isValid()) {
                              setLocked(value.toBool());
                          }
                      });
}

void LogindSession::setLocked(bool locked) {
    if (std::exchange(locked_, locked) != locked) {
        changed_();
    }
}

void LogindSession::setPreparingForSleep(bool preparing) {
    if (std::exchange(preparingForSleep_, preparing) != preparing) {
        changed_();
    }
}

} // namespace quietlark
