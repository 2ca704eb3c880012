#include "Quietlark/AppDelegate.h"

#include "Quietlark/KeyboardYieldingLock.h"
#include "Quietlark/Pet/WumbleView.h"
#include "Quietlark/Platform/Linux/Hosting/SurfaceHosts.h"
#include "Quietlark/Platform/Linux/LinuxPlatform.h"
#include "Quietlark/QtMainLoop.h"
#include "Quietlark/SystemCalendar.h"
#include "WumbleCore/Storage/DataFolderLock.h"
#include "WumbleCore/Storage/Storage.h"

#include <QCoreApplication>

#include <cstdio>
#include <string>
#include <system_error>
#include <utility>

namespace quietlark {

namespace {

constexpr double demoBreakSeconds = 12;

/// A break that is due at the start must not begin in the middle of a call that nobody has told of yet. Most
/// desktops answer within some hundredths of a second; one that doesn't is not waited for.
constexpr double longestWaitForAnswers = 1;
constexpr double answerCheckInterval = 0.01;

/// One spelling for one folder, so that two copies agree on which it is.
std::filesystem::path standardized(const std::filesystem::path& folder) {
    std::error_code failed;
    const auto canonical =
        std::filesystem::weakly_canonical(std::filesystem::absolute(folder, failed), failed);
    return failed ? folder.lexically_normal() : canonical;
}

int refuse(const std::filesystem::path& folder) {
    QtMainLoop loop;
    makeLinuxPlatform(loop).copyNotice->postAnotherCopyStarted(folder.string());
    std::printf(
        "Quietlark is already running on %s. Set WUMBLE_DATA_DIR to another folder to run a second copy.\n",
        folder.c_str());
    return 0;
}

/// A lock screen needs the keyboard that a break screen holds.
std::unique_ptr<SurfaceHost> hostYieldingToLocks(Platform& platform) {
    auto host = makeSurfaceHost();
    platform.screenLock = std::make_unique<KeyboardYieldingLock>(std::move(platform.screenLock), *host);
    return host;
}

} // namespace

AppDelegate::AppDelegate(const std::filesystem::path& folder, const command::RunApplication& options,
                         MainLoop& loop, Platform platform)
    : loop_(loop), platform_(std::move(platform)), accessibility_(*platform_.announcer, *platform_.look),
      host_(hostYieldingToLocks(platform_)), sounds_(*platform_.soundOutput),
      timeZone_([this] { model_.setCalendar(systemCalendar()); }),
      model_(folder, {.mainLoop = loop_,
                      .platform = platform_,
                      .sounds = &sounds_,
                      .loginItem = platform_.loginItem.get(),
                      .accessibility = &accessibility_,
                      .calendar = systemCalendar()}),
      surfaces_({.model = model_,
                 .loop = loop_,
                 .host = *host_,
                 .windows = *platform_.windows,
                 .screenLock = platform_.screenLock.get(),
                 .accessibility = &accessibility_,
                 .desktopLook = platform_.look.get(),
                 .tray = platform_.tray.get(),
                 .doors = {.openSettings = [this] { settings().present(); },
                           .quit = [] { QCoreApplication::quit(); }}}),
      termination_([] { QCoreApplication::quit(); }),
      processEnd_([this] { model_.prepareForTermination(); }) {
    model_.openCollage = [this](auto period, auto date) { settings().presentCrew({period, date}); };
    WumbleView::onPoke = [this](wumble::WumbleGesture gesture) { model_.petWasPoked(gesture); };
    WumbleView::desktopPointer = [this] { return host_->pointer(); };
    platform_.copyNotice->observeAnotherCopyStarted(folder.string(), [this] { model_.anotherCopyStarted(); });
    platform_.copyNotice->observeActivation([this] { reopen(); });
    platform_.copyNotice->observeSessionEnd([this] { model_.save(); }); // a session that ends may yet be kept
    beginWhenTheDesktopHasAnswered(options, loop_.uptime() + longestWaitForAnswers);
}

void AppDelegate::beginWhenTheDesktopHasAnswered(const command::RunApplication& options, double deadline) {
    platform_.refresh(loop_.uptime());
    if (platform_.ready() || loop_.uptime() >= deadline) {
        begin(options);
        return;
    }
    loop_.after(answerCheckInterval, [=, this] { beginWhenTheDesktopHasAnswered(options, deadline); });
}

void AppDelegate::begin(const command::RunApplication& options) {
    model_.start(AppModel::Running::ticking);
    surfaces_.prepare();
    carryOut(options);
    if (isWelcomed()) {
        model_.greetToday();
    } else {
        showWelcome();
    }
}

bool AppDelegate::isWelcomed() const { return model_.state().life.value().welcomed.value_or(true); }

/// The person started the program again, or pressed its icon.
void AppDelegate::reopen() {
    if (!isWelcomed()) {
        showWelcome();
    } else if (platform_.tray->isShown()) {
        settings().present();
    } else {
        surfaces_.openPopover();
    }
}

SettingsWindow& AppDelegate::settings() {
    if (!settings_) {
        settings_ =
            std::make_unique<SettingsWindow>(model_, platform_.loginItem.get(), surfaces_.appearance());
    }
    return *settings_;
}

void AppDelegate::showWelcome() {
    if (!welcome_) {
        welcome_ = std::make_unique<WelcomeWindow>(model_, platform_.loginItem.get(), surfaces_.appearance());
    }
    welcome_->present();
}

AppDelegate::~AppDelegate() {
    WumbleView::desktopPointer = nullptr;
    WumbleView::onPoke = nullptr;
    model_.prepareForTermination();
}

void AppDelegate::carryOut(const command::RunApplication& options) {
    if (options.demoBreak) {
        model_.startPreview(demoBreakSeconds);
    }
    if (options.openSettings) {
        settings().present();
    }
    if (options.openCollage) {
        model_.openCollage(wumble::Recap::Period::week, model_.state().now.value());
    }
    if (options.enableLaunchAtLogin) {
        model_.setOpenAtLogin(true);
    }
}

int runApplication(const command::RunApplication& options) {
    const auto folder = standardized(wumble::Storage::defaultDirectory());
    const auto lock = wumble::DataFolderLock::take(folder);
    if (!lock) {
        return refuse(folder);
    }
    QtMainLoop loop;
    const AppDelegate delegate(folder, options, loop, makeLinuxPlatform(loop));
    return QCoreApplication::exec();
}

} // namespace quietlark
