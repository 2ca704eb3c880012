#include "Quietlark/Platform/Linux/DBus/SessionEnd.h"

#include "Quietlark/Platform/Linux/DBus/LogindSession.h"
#include "Quietlark/Platform/Linux/DBus/OwnName.h"
#include "Quietlark/Platform/Linux/DBus/SessionManagerHolds.h"

#include <QDBusObjectPath>

namespace quietlark {

namespace {

const QString manager = SessionManagerHolds::service;
const QString managerPath = SessionManagerHolds::path;
const QString clientInterface = QStringLiteral("org.gnome.SessionManager.ClientPrivate");

} // namespace

SessionEnd::SessionEnd(const Buses& buses, std::function<void()> ending)
    : manager_(buses.session), logind_(buses.system),
      startupID_(qEnvironmentVariable("DESKTOP_AUTOSTART_ID")), ending_(std::move(ending)) {
    // What this program starts isn't the session's client of that id.
    qunsetenv("DESKTOP_AUTOSTART_ID");
    manager_.followService(
        manager, [this] { registerClient(); }, [this] { client_.clear(); });
    logind_.followService(
        LogindSession::service, [] {}, [] {});
    logind_.onSignal(
        {LogindSession::managerPath, LogindSession::managerInterface, QStringLiteral("PrepareForShutdown")},
        [this](const QDBusMessage& message) {
            if (logind_.isOwner(LogindSession::service, message) && message.arguments().value(0).toBool()) {
                ending_();
            }
        });
}

SessionEnd::~SessionEnd() {
    if (!client_.isEmpty()) {
        manager_.call({manager, managerPath, manager, QStringLiteral("UnregisterClient")},
                      {QVariant::fromValue(QDBusObjectPath(client_))}, [](const QDBusMessage&) {});
    }
}

void SessionEnd::registerClient() {
    manager_.call({manager, managerPath, manager, QStringLiteral("RegisterClient")},
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
                              if (path == client_ && manager_.isOwner(manager, message)) {
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
    manager_.call({manager, client_, clientInterface, QStringLiteral("EndSessionResponse")},
                  {true, QString()}, [](const QDBusMessage&) {});
}

} // namespace quietlark
