#include "Quietlark/Platform/Linux/DBus/StatusNotifierObject.h"

#include "Quietlark/Platform/Linux/DBus/OwnName.h"
#include "Quietlark/Platform/Linux/DBus/TrayMenu.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <algorithm>
#include <array>

namespace quietlark {

namespace {

const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

struct Property {
    const char* name;
    const char* type;
    QVariant (*value)(const StatusNotifierObject&);
};

QVariant text(const QString& value) { return QVariant(value); }
QVariant noPixmaps() { return QVariant::fromValue(trayRecords::Pixmaps()); }

QVariant toolTip(const StatusNotifierObject& item) {
    return QVariant::fromValue(trayRecords::ToolTip{QString(), {}, item.label.toHtmlEscaped(), QString()});
}

constexpr std::array<Property, 18> properties{{
    {"Category", "s", [](const auto&) { return text(QStringLiteral("ApplicationStatus")); }},
    {"Id", "s", [](const auto&) { return text(ownName::service); }},
    {"Title", "s", [](const auto&) { return text(ownName::shown); }},
    {"Status", "s", [](const auto&) { return text(QStringLiteral("Active")); }},
    {"WindowId", "i", [](const auto&) { return QVariant(0); }},
    {"IconThemePath", "s", [](const auto&) { return text(QString()); }},
    {"IconName", "s", [](const auto&) { return text(QString()); }},
    {"IconPixmap", "a(iiay)",
     [](const auto& item) { return QVariant::fromValue(trayRecords::pixmaps(item.pictures)); }},
    {"IconAccessibleDesc", "s", [](const auto& item) { return text(item.label); }},
    {"OverlayIconName", "s", [](const auto&) { return text(QString()); }},
    {"OverlayIconPixmap", "a(iiay)", [](const auto&) { return noPixmaps(); }},
    {"AttentionIconName", "s", [](const auto&) { return text(QString()); }},
    {"AttentionIconPixmap", "a(iiay)", [](const auto&) { return noPixmaps(); }},
    {"ToolTip", "(sa(iiay)ss)", [](const auto& item) { return toolTip(item); }},
    {"ItemIsMenu", "b", [](const auto&) { return QVariant(false); }},
    {"Menu", "o", [](const auto&) { return QVariant::fromValue(QDBusObjectPath(TrayMenu::path())); }},
    {"XAyatanaLabel", "s", [](const auto& item) { return text(item.title); }},
    {"XAyatanaLabelGuide", "s", [](const auto& item) { return text(item.titleGuide()); }},
}};

/// Panels that know no position say the top left corner.
std::optional<QPointF> place(const QVariantList& arguments) {
    const QPointF told(arguments.value(0).toInt(), arguments.value(1).toInt());
    return told.isNull() ? std::nullopt : std::optional(told);
}

/// The ways in which panels pass a click on; those for the menu come from panels that show none.
bool isClick(const QDBusMessage& message) {
    constexpr std::array<const char*, 3> members = {"Activate", "SecondaryActivate", "ContextMenu"};
    return message.signature() == QLatin1String("ii") &&
           std::ranges::any_of(members,
                               [&](const char* member) { return message.member() == QLatin1String(member); });
}

/// What needs no answer but that it came.
bool isHeard(const QDBusMessage& message) {
    const QString called = message.member() + u' ' + message.signature();
    return called == QLatin1String("Scroll is") || called == QLatin1String("ProvideXdgActivationToken s");
}

} // namespace

const QString& StatusNotifierObject::path() {
    static const QString place = QStringLiteral("/StatusNotifierItem");
    return place;
}

const QString& StatusNotifierObject::interface() {
    static const QString name = QStringLiteral("org.kde.StatusNotifierItem");
    return name;
}

QString StatusNotifierObject::titleGuide() const {
    QString guide = title;
    for (QChar& letter : guide) {
        letter = letter.isDigit() ? QChar(u'0') : letter;
    }
    return guide;
}

QVariant StatusNotifierObject::property(const QString& name) const {
    const auto found = std::ranges::find_if(
        properties, [&](const Property& property) { return name == QLatin1String(property.name); });
    return found == properties.end() ? QVariant() : found->value(*this);
}

bool StatusNotifierObject::answerProperties(const QDBusMessage& message,
                                            const QDBusConnection& connection) const {
    const QVariantList given = message.arguments();
    if (message.member() == QLatin1String("Get") && message.signature() == QLatin1String("ss")) {
        const QVariant value = property(given[1].toString());
        return value.isValid() &&
               connection.send(message.createReply(QVariant::fromValue(QDBusVariant(value))));
    }
    if (message.member() != QLatin1String("GetAll")) {
        return false;
    }
    QVariantMap all;
    for (const Property& property : properties) {
        all[QLatin1String(property.name)] = property.value(*this);
    }
    return connection.send(message.createReply(QVariant(all)));
}

bool StatusNotifierObject::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.interface() == propertiesInterface) {
        return answerProperties(message, connection);
    }
    if (!message.interface().isEmpty() && message.interface() != interface()) {
        return false;
    }
    if (isClick(message)) {
        connection.send(message.createReply());
        activated(place(message.arguments()));
        return true;
    }
    return isHeard(message) && connection.send(message.createReply());
}

QString StatusNotifierObject::introspect(const QString& /*path*/) const {
    QString described = QStringLiteral("<interface name=\"%1\">\n").arg(interface());
    for (const Property& property : properties) {
        described += QStringLiteral("  <property name=\"%1\" type=\"%2\" access=\"read\"/>\n")
                         .arg(QLatin1String(property.name), QLatin1String(property.type));
    }
    for (const char* click : {"Activate", "SecondaryActivate", "ContextMenu"}) {
        described += QStringLiteral("  <method name=\"%1\"><arg type=\"i\" direction=\"in\"/>"
                                    "<arg type=\"i\" direction=\"in\"/></method>\n")
                         .arg(QLatin1String(click));
    }
    described += QStringLiteral(R"(  <method name="Scroll">
    <arg type="i" direction="in"/><arg type="s" direction="in"/>
  </method>
  <method name="ProvideXdgActivationToken"><arg type="s" direction="in"/></method>
  <signal name="NewIcon"/><signal name="NewToolTip"/><signal name="NewTitle"/>
  <signal name="XAyatanaNewLabel"><arg type="s"/><arg type="s"/></signal>
</interface>
)");
    return described;
}

} // namespace quietlark
