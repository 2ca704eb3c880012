#include "Quietlark/Platform/Linux/DBus/LogindHolds.h"

#include "Quietlark/Platform/Linux/DBus/LogindNames.h"

#include <QDBusArgument>
#include <unistd.h>

namespace quietlark {

namespace {

const QString idle = QStringLiteral("idle");

struct LogindInhibitor {
    QString what;
    QString who;
    QString why;
    QString mode;
    unsigned user = 0;
    unsigned pid = 0;
};

std::vector<LogindInhibitor> inhibitors(const QDBusMessage& reply) {
    std::vector<LogindInhibitor> result;
    if (reply.signature() != QLatin1String("a(ssssuu)")) {
        return result;
    }
    const auto list = qvariant_cast<QDBusArgument>(reply.arguments().value(0));
    for (list.beginArray(); !list.atEnd();) {
        LogindInhibitor& inhibitor = result.emplace_back();
        list.beginStructure();
        list >> inhibitor.what >> inhibitor.who >> inhibitor.why >> inhibitor.mode >> inhibitor.user >>
            inhibitor.pid;
        list.endStructure();
    }
    list.endArray();
    return result;
}

/// Other people's sessions on this machine keep their own displays awake, not this one.
bool concernsUs(const LogindInhibitor& inhibitor) {
    return inhibitor.mode == QLatin1String("block") && inhibitor.what.split(u':').contains(idle) &&
           (inhibitor.user == 0 || inhibitor.user == getuid());
}

} // namespace

LogindHolds::LogindHolds(std::shared_ptr<Bus> system) : link_(std::move(system)) {
    link_.onSignal({logind::path,
                    QStringLiteral("org.freedesktop.DBus.Properties"),
                    QStringLiteral("PropertiesChanged"),
                    {logind::managerInterface}},
                   [this](const QDBusMessage&) { askMask(); });
    link_.followService(
        logind::service, [this] { askMask(); },
        [this] {
            setMask({});
            answered_ = false;
        });
}

bool LogindHolds::settled() const {
    return answered_ || (link_.knows(logind::service) && !link_.isRunning(logind::service));
}

void LogindHolds::askMask() {
    link_.getProperty(
        {logind::service, logind::path, logind::managerInterface, QStringLiteral("BlockInhibited")},
        [this](const QVariant& mask) { setMask(mask.toString()); });
}

void LogindHolds::setMask(const QString& mask) {
    idleIsBlocked_ = mask.split(u':').contains(idle);
    if (idleIsBlocked_) {
        list();
    } else {
        answered_ = true;
        holds_.clear();
        tell();
    }
}

void LogindHolds::refresh(double uptime) {
    if (idleIsBlocked_ && !listing_ && uptime >= nextList_) {
        nextList_ = uptime + secondsBetweenHoldLists;
        list();
    }
}

void LogindHolds::list() {
    listing_ = true;
    link_.call({logind::service, logind::path, logind::managerInterface, QStringLiteral("ListInhibitors")},
               {}, [this](const QDBusMessage& reply) {
                   listing_ = false;
                   answered_ = true;
                   holds_.clear();
                   for (const LogindInhibitor& inhibitor : inhibitors(reply)) {
                       if (idleIsBlocked_ && concernsUs(inhibitor)) {
                           holds_.push_back(
                               {{.pid = static_cast<int>(inhibitor.pid), .name = inhibitor.who.toStdString()},
                                inhibitor.why.toStdString()});
                       }
                   }
                   tell();
               });
}

} // namespace quietlark
