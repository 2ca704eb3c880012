#include "Quietlark/Platform/Linux/DBus/ScreenSavers.h"

#include <QDBusError>
#include <algorithm>
#include <utility>

namespace quietlark {

const QStringList& ScreenSavers::services() {
    static const QStringList names = {
        QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("org.gnome.ScreenSaver"),
        QStringLiteral("org.mate.ScreenSaver"),        QStringLiteral("org.xfce.ScreenSaver"),
        QStringLiteral("org.cinnamon.ScreenSaver"),
    };
    return names;
}

QStringList ScreenSavers::paths(const QString& service) {
    const QString named = u'/' + QString(service).replace(u'.', u'/');
    return {named, QStringLiteral("/ScreenSaver"), QStringLiteral("/")};
}

bool ScreenSavers::isElsewhere(const QDBusMessage& answer) {
    const auto error = QDBusError(answer).type();
    return error == QDBusError::UnknownObject || error == QDBusError::UnknownMethod ||
           error == QDBusError::UnknownInterface;
}

ScreenSavers::ScreenSavers(std::shared_ptr<Bus> session) : link_(std::move(session)) {
    for (const QString& service : services()) {
        savers_[service] = {};
        link_.onSignal({QString(), service, QStringLiteral("ActiveChanged")},
                       [this, service](const QDBusMessage& message) {
                           if (link_.isOwner(service, message)) {
                               set(service, message.arguments().value(0).toBool());
                           }
                       });
        link_.followService(
            service, [this, service] { ask(service, 0); }, [this, service] { set(service, false); });
    }
}

bool ScreenSavers::settled() const {
    return std::ranges::all_of(savers_, [this](const auto& entry) {
        const auto& [service, saver] = entry;
        return saver.answered || (link_.knows(service) && !link_.isRunning(service));
    });
}

bool ScreenSavers::anyIsActive() const {
    return std::ranges::any_of(savers_, [](const auto& entry) { return entry.second.active; });
}

void ScreenSavers::ask(const QString& service, qsizetype pathIndex) {
    const QStringList candidates = paths(service);
    link_.call({service, candidates[pathIndex], service, QStringLiteral("GetActive")}, {},
               [this, service, pathIndex, last = candidates.size() - 1](const QDBusMessage& reply) {
                   if (isElsewhere(reply) && pathIndex < last) {
                       ask(service, pathIndex + 1);
                   } else if (reply.type() == QDBusMessage::ReplyMessage) {
                       set(service, link_.isRunning(service) && reply.arguments().value(0).toBool());
                   } else {
                       savers_[service].answered = true;
                   }
               });
}

void ScreenSavers::set(const QString& service, bool active) {
    Saver& saver = savers_[service];
    saver.answered = true;
    if (std::exchange(saver.active, active) != active) {
        changed_();
    }
}

} // namespace quietlark
