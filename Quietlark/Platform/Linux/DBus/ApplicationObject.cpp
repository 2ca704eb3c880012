#include "Quietlark/Platform/Linux/DBus/ApplicationObject.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace quietlark {

namespace {

const QString applicationInterface = QStringLiteral("org.freedesktop.Application");

struct Method {
    const char* name;
    const char* signature;
};

constexpr Method methods[] = {{"Activate", "a{sv}"}, {"Open", "asa{sv}"}, {"ActivateAction", "sava{sv}"}};

bool isOffered(const QDBusMessage& message) {
    for (const Method& method : methods) {
        if (message.member() == QLatin1String(method.name)) {
            return message.signature() == QLatin1String(method.signature);
        }
    }
    return false;
}

} // namespace

QString ApplicationObject::introspect(const QString& /*path*/) const {
    return QStringLiteral(R"(<interface name="org.freedesktop.Application">
  <method name="Activate"><arg type="a{sv}" name="platform_data" direction="in"/></method>
  <method name="Open">
    <arg type="as" name="uris" direction="in"/><arg type="a{sv}" name="platform_data" direction="in"/>
  </method>
  <method name="ActivateAction">
    <arg type="s" name="action_name" direction="in"/><arg type="av" name="parameter" direction="in"/>
    <arg type="a{sv}" name="platform_data" direction="in"/>
  </method>
</interface>
)");
}

bool ApplicationObject::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    const bool named = message.interface().isEmpty() || message.interface() == applicationInterface;
    if (!named || !isOffered(message)) {
        return false;
    }
    connection.send(message.createReply());
    activated_();
    return true;
}

} // namespace quietlark
