#include "Quietlark/Platform/Linux/LinuxPlatform.h"

#include "Quietlark/Platform/Linux/Audio/AudioServices.h"
#include "Quietlark/Platform/Linux/Audio/PulseSoundOutput.h"
#include "Quietlark/Platform/Linux/DBus/BusServices.h"
#include "Quietlark/Platform/Linux/Desktop/AutostartEntry.h"
#include "Quietlark/Platform/Linux/LinuxTrayItem.h"
#include "Quietlark/Platform/Linux/Proc/LinuxAppIdentity.h"
#include "Quietlark/Platform/Linux/Proc/LinuxApplications.h"
#include "Quietlark/Platform/Linux/Video/VideoServices.h"
#include "Quietlark/Platform/Linux/WindowSystems.h"

#include <functional>
#include <memory>
#include <optional>
#include <unistd.h>
#include <utility>

namespace quietlark {

namespace {

/// What the services of the platform ask each other.
struct Foundation {
    Processes processes;
    DesktopEntries entries{DesktopEntries::sessionFolders()};
    LinuxAppIdentity identity{processes, entries};

    /// Idle time may come from the bus, and the state of the displays from the window system.
    std::function<std::optional<double>()> mutterIdle;
    std::function<std::optional<bool>()> displaysAsleep;
};

/// Panels of a Wayland session take no X windows in.
std::string trayDisplay() {
    return qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? qEnvironmentVariable("DISPLAY").toStdString()
                                                          : "";
}

} // namespace

Platform makeLinuxPlatform(MainLoop& loop) {
    const auto foundation = std::make_shared<Foundation>();
    Foundation& base = *foundation;
    base.entries.readIfChanged();
    Platform platform;
    platform.foundation = foundation;

    WindowSystems windows =
        makeWindowSystems([&base] { return base.mutterIdle ? base.mutterIdle() : std::nullopt; });
    base.displaysAsleep = windows.displaysAsleep;
    platform.input = std::move(windows.input);
    platform.windows = std::move(windows.windows);
    platform.applications =
        std::make_unique<LinuxApplications>(*platform.windows, base.identity, base.processes, base.entries);

    BusServices bus = makeBusServices(loop, base.identity, base.displaysAsleep);
    base.mutterIdle = bus.mutterIdle;
    platform.session = std::move(bus.session);
    platform.sleepHolders = std::move(bus.sleepHolders);
    platform.sleepAssertion = std::move(bus.sleepAssertion);
    platform.screenLock = std::move(bus.screenLock);
    platform.copyNotice = std::move(bus.copyNotice);
    platform.look = std::move(bus.look);
    platform.announcer = std::move(bus.announcer);
    platform.tray = std::make_unique<LinuxTrayItem>(std::move(bus.tray), trayDisplay());

    VideoServices video = makeVideoServices(base.identity);
    platform.camera = std::move(video.camera);
    platform.screenWatch = std::move(video.screenWatch);
    platform.captureLogRunner = std::move(video.captureLogRunner);
    platform.microphone = makeMicrophone(base.identity);
    platform.soundOutput = std::make_unique<PulseSoundOutput>(loop);
    platform.loginItem = AutostartEntry::ofThisSession();
    platform.processName = base.processes.name(getpid());
    return platform;
}

} // namespace quietlark
