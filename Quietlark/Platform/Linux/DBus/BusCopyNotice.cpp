#include "Quietlark/Platform/Linux/DBus/BusCopyNotice.h"

#include "Quietlark/Platform/Linux/DBus/OwnName.h"

#include <chrono>

namespace quietlark {

namespace {

const QString noticeMember = QStringLiteral("anotherCopyStarted");
constexpr double secondsForPosting = 1;

} // namespace

BusCopyNotice::~BusCopyNotice() {
    if (application_ && buses_.session->isConnected()) {
        buses_.session->connection().unregisterObject(ownName::path);
    }
}

void BusCopyNotice::postAnotherCopyStarted(const std::string& folder) {
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    if (!buses_.session->waitUntilConnected(secondsForPosting)) {
        return;
    }
    QDBusMessage notice = QDBusMessage::createSignal(ownName::path, ownName::service, noticeMember);
    notice.setArguments({QString::fromStdString(folder)});
    buses_.session->connection().send(notice);
    const double waited = std::chrono::duration<double>(Clock::now() - begin).count();
    buses_.session->flush(secondsForPosting - waited);
}

void BusCopyNotice::observeAnotherCopyStarted(const std::string& folder, std::function<void()> started) {
    link_.onSignal({ownName::path, ownName::service, noticeMember},
                   [this, folder = QString::fromStdString(folder),
                    started = std::move(started)](const QDBusMessage& message) {
                       const bool isOurOwn = message.service() == buses_.session->connection().baseService();
                       if (!isOurOwn && message.arguments().value(0).toString() == folder) {
                           started();
                       }
                   });
}

void BusCopyNotice::observeActivation(std::function<void()> activated) {
    application_ = std::make_unique<ApplicationObject>(std::move(activated));
    link_.onConnection([this] { appear(); }, [] {});
}

void BusCopyNotice::appear() {
    constexpr unsigned doNotQueue = 4;
    buses_.session->connection().registerVirtualObject(ownName::path, application_.get());
    // The desktop may call as soon as the name is ours, so the object stands before that. Where another copy
    // has the name, that one is activated.
    link_.call({QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName")},
               {ownName::service, doNotQueue}, [](const QDBusMessage&) {});
}

void BusCopyNotice::observeSessionEnd(std::function<void()> ending) {
    sessionEnd_.emplace(buses_, std::move(ending));
}

} // namespace quietlark
