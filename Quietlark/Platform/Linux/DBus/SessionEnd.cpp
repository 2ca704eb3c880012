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

void SessionEnd::registerClient() {
    manager_.call({sessionManager::service, sessionManager::path, sessionManager::service,
                   QStringLiteral("RegisterClient")},
                  {ownName::service, startupID_}, [this](const QDBusMessage& reply) {
                      if (reply.type() == QDBusMessage::ReplyMessage) {
                          followClient(qvariant_cast<QDBusObjectPath>(reply.arguments().value(0)).path());
                      }
                  });
}

void SessionEnd::followClient(const QString& path) {
    client_ = path;
    const auto follow = [&](const char* member, std::function<void()> react) {
        manager_.onSignal({path, clientInterface, QString::fromLatin1(member)},
                          [this, path, react = std::move(react)](const QDBusMessage& message) {
                              if (path == client_ && manager_.isOwner(sessionManager::service, message)) {
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

void SessionEnd::answer() {
    manager_.call({sessionManager::service, client_, clientInterface, QStringLiteral("EndSessionResponse")},
                  {true, QString()}, [](const QDBusMessage&) {});
}

} // namespace quietlark
