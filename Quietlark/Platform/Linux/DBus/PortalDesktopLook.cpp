#include "Quietlark/Platform/Linux/DBus/PortalDesktopLook.h"

#include <QDBusArgument>
#include <QDBusVariant>

namespace quietlark {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");

/// Portals put some values into a variant of their own.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>()) {
        value = qvariant_cast<QDBusVariant>(value).variant();
    }
    return value;
}

LookKeys::Values valuesIn(const QDBusMessage& reply) {
    LookKeys::Values values;
    if (reply.signature() != QLatin1String("a{sa{sv}}")) {
        return values;
    }
    qvariant_cast<QDBusArgument>(reply.arguments().value(0)) >> values;
    for (QVariantMap& keys : values) {
        for (QVariant& value : keys) {
            value = unwrapped(value);
        }
    }
    return values;
}

} // namespace

PortalDesktopLook::PortalDesktopLook(std::shared_ptr<Bus> session) : link_(std::move(session)) {
    link_.onSignal({path, settings, QStringLiteral("SettingChanged")}, [this](const QDBusMessage& message) {
        const QVariantList told = message.arguments();
        if (link_.isOwner(service, message) && message.signature() == QLatin1String("ssv")) {
            take(told[0].toString(), told[1].toString(), unwrapped(told[2]));
        }
    });
    link_.followService(
        service, [this] { readAll(); }, [] {});
    link_.onConnection([this] { wake(); }, [] {});
}

/// Portals begin with the first program that asks for them, which may well be this one.
void PortalDesktopLook::wake() {
    constexpr unsigned noFlags = 0;
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    link_.call({bus, QStringLiteral("/org/freedesktop/DBus"), bus, QStringLiteral("StartServiceByName")},
               {service, noFlags}, [](const QDBusMessage&) {});
}

void PortalDesktopLook::readAll() {
    link_.call({service, path, settings, QStringLiteral("ReadAll")}, {LookKeys::namespaces()},
               [this](const QDBusMessage& reply) {
                   if (reply.type() == QDBusMessage::ReplyMessage) {
                       values_ = valuesIn(reply);
                       judge();
                   }
               });
}

void PortalDesktopLook::take(const QString& place, const QString& key, const QVariant& value) {
    if (LookKeys::namespaces().contains(place)) {
        values_[place][key] = value;
        judge();
    }
}

void PortalDesktopLook::judge() {
    const DesktopLook seen = LookKeys::look(values_);
    if (seen == look_) {
        return;
    }
    look_ = seen;
    if (changed_) {
        changed_();
    }
}

} // namespace quietlark
