#include "Quietlark/Platform/Linux/DBus/NamedHolds.h"

#include <QDBusArgument>

namespace quietlark {

namespace {

std::vector<DisplayHold> namesAndReasons(const QDBusMessage& reply) {
    std::vector<DisplayHold> result;
    if (reply.signature() != QLatin1String("a(ss)")) {
        return result;
    }
    const auto list = qvariant_cast<QDBusArgument>(reply.arguments().value(0));
    for (list.beginArray(); !list.atEnd();) {
        QString name;
        QString reason;
        list.beginStructure();
        list >> name >> reason;
        list.endStructure();
        result.push_back({{.appID = name.toStdString(), .name = name.toStdString()}, reason.toStdString()});
    }
    list.endArray();
    return result;
}

std::vector<DisplayHold> namesAlone(const QDBusMessage& reply) {
    std::vector<DisplayHold> result;
    for (const QString& name : reply.arguments().value(0).toStringList()) {
        result.push_back({{.appID = name.toStdString(), .name = name.toStdString()}, {}});
    }
    return result;
}

} // namespace

NamedHolds::Service NamedHolds::policyAgent() {
    const QString name = QStringLiteral("org.kde.Solid.PowerManagement.PolicyAgent");
    return {.name = name,
            .path = QStringLiteral("/org/kde/Solid/PowerManagement/PolicyAgent"),
            .interface = name,
            .list = QStringLiteral("ListInhibitions"),
            .changed = QStringLiteral("InhibitionsChanged"),
            .read = namesAndReasons};
}

NamedHolds::Service NamedHolds::powerManagement() {
    const QString name = QStringLiteral("org.freedesktop.PowerManagement.Inhibit");
    return {.name = name,
            .path = QStringLiteral("/org/freedesktop/PowerManagement/Inhibit"),
            .interface = name,
            .list = QStringLiteral("GetInhibitors"),
            .changed = QStringLiteral("HasInhibitChanged"),
            .read = namesAlone,
            .tellsOfEveryChange = false};
}

NamedHolds::NamedHolds(std::shared_ptr<Bus> session, Service service)
    : link_(std::move(session)), service_(std::move(service)) {
    link_.onSignal({service_.path, service_.interface, service_.changed},
                   [this](const QDBusMessage& message) {
                       if (link_.isOwner(service_.name, message)) {
                           ask();
                       }
                   });
    link_.followService(
        service_.name, [this] { ask(); },
        [this] {
            answered_ = false;
            holds_.clear();
            tell();
        });
}

bool NamedHolds::settled() const {
    return answered_ || (link_.knows(service_.name) && !link_.isRunning(service_.name));
}

void NamedHolds::refresh(double uptime) {
    if (!service_.tellsOfEveryChange && !holds_.empty() && !asking_ && uptime >= nextList_) {
        nextList_ = uptime + secondsBetweenHoldLists;
        ask();
    }
}

void NamedHolds::ask() {
    asking_ = true;
    link_.call({service_.name, service_.path, service_.interface, service_.list}, {},
               [this](const QDBusMessage& reply) {
                   asking_ = false;
                   answered_ = true;
                   const bool hasList = reply.type() == QDBusMessage::ReplyMessage;
                   holds_ = hasList && link_.isRunning(service_.name) ? service_.read(reply)
                                                                      : std::vector<DisplayHold>();
                   tell();
               });
}

} // namespace quietlark
