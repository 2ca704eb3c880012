#include "Quietlark/Platform/Linux/DBus/SessionEnd.h"

#include "Quietlark/Platform/Linux/DBus/LogindNames.h"
#include "Quietlark/Platform/Linux/DBus/OwnName.h"
#include "Quietlark/Platform/Linux/DBus/SessionManagerNames.h"

#include <QDBusObjectPath>

namespace quietlark {

namespace {

const QString clientInterface = QStringLiteral("org.gnome.SessionManager.ClientPrivate");

} // namespace

SessionEnd::SessionEnd(const Buses& buses, std::function<void()> ending)
    : manager_(buses.session), logind_(buses.system),
      startupID_(qEnvironmentVariable("DESKTOP_AUTOSTART_ID")), ending_(std::move(ending)) {
    // What this program starts isn't the session's client of that id.
    qunsetenv("DESKTOP_AUTOSTART_ID");
    followClient();
    manager_.followService(
        sessionManager::service, [this] { registerClient(); }, [this] { client_.clear(); });
    logind_.followService(
        logind::service, [] {}, [] {});
    logind_.onSignal({logind::path, logind::managerInterface, QStringLiteral("PrepareForShutdown")},
                     [this](const QDBusMessage& message) {
                         if (logind_.isOwner(logind::service, message) &&
                             message.arguments().value(0).toBool()) {
                             ending_();
                         }
                     });
}

SessionEnd::~SessionEnd() {
    if (!client_.isEmpty()) {
        manager_.call({sessionManager::service, sessionManager::path, sessionManager::service,
                       QStringLiteral("UnregisterClient")},
                      {QVariant::fromValue(QDBusObjectPath(client_))}, [](const QDBusMessage&) {});
    }
}

void SessionEnd::followClient() {
    // For any object: the manager may ask the moment it has registered us, and says only then which one is
    // ours.
    const auto follow = [this](const char* member, std::function<void()> react) {
        manager_.onSignal({QString(), clientInterface, QString::fromLatin1(member)},
                          [this, react = std::move(react)](const QDBusMessage& message) {
                              const bool isOurs = message.path() == client_;
                              if (isOurs && manager_.isOwner(sessionManager::service, message)) {
                                  react();
                              }
                          });
    };
    follow("QueryEndSession", [this] { answer(); });
    follow("EndSession", [this] {
        ending_();
        answer();
    });
    follow("Stop", [this] { ending_(); });
}

void SessionEnd::registerClient() {
    const BusMethod method = {sessionManager::service, sessionManager::path, sessionManager::service,
                              QStringLiteral("RegisterClient")};
    manager_.call(method, {ownName::service, startupID_}, [this](const QDBusMessage& reply) {
        client_ = qvariant_cast<QDBusObjectPath>(reply.arguments().value(0)).path();
    });
}

void SessionEnd::answer() {
    manager_.call({sessionManager::service, client_, clientInterface, QStringLiteral("EndSessionResponse")},
                  {true, QString()}, [](const QDBusMessage&) {});
}

} // namespace quietlark
