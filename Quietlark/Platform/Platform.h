#pragma once

#include "Quietlark/MainLoop.h"
#include "Quietlark/Platform/Announcer.h"
#include "Quietlark/Platform/Applications.h"
#include "Quietlark/Platform/Camera.h"
#include "Quietlark/Platform/CaptureLogRunner.h"
#include "Quietlark/Platform/CopyNotice.h"
#include "Quietlark/Platform/DesktopLook.h"
#include "Quietlark/Platform/InputClock.h"
#include "Quietlark/Platform/LoginItem.h"
#include "Quietlark/Platform/Microphone.h"
#include "Quietlark/Platform/ScreenLock.h"
#include "Quietlark/Platform/ScreenWatch.h"
#include "Quietlark/Platform/SessionWatch.h"
#include "Quietlark/Platform/SleepAssertion.h"
#include "Quietlark/Platform/SleepHolders.h"
#include "Quietlark/Platform/SoundOutput.h"
#include "Quietlark/Platform/TrayItem.h"
#include "Quietlark/Platform/WindowSystem.h"

#include <memory>
#include <string>

namespace quietlark {

/// Everything the program asks of the desktop. Whoever makes it fills every member.
struct Platform {
    std::shared_ptr<void> foundation; ///< what the members stand on together; it ends last
    std::unique_ptr<InputClock> input;
    std::unique_ptr<SessionWatch> session;
    std::unique_ptr<WindowSystem> windows;
    std::unique_ptr<Applications> applications;
    std::unique_ptr<Microphone> microphone;
    std::unique_ptr<Camera> camera;
    std::unique_ptr<ScreenWatch> screenWatch;
    std::unique_ptr<CaptureLogRunner> captureLogRunner;
    std::unique_ptr<SleepHolders> sleepHolders;
    std::unique_ptr<SleepAssertion> sleepAssertion;
    std::unique_ptr<ScreenLock> screenLock;
    std::unique_ptr<CopyNotice> copyNotice;
    std::unique_ptr<SoundOutput> soundOutput;
    std::unique_ptr<LoginItem> loginItem;
    std::unique_ptr<DesktopLookSource> look;
    std::unique_ptr<Announcer> announcer;
    std::unique_ptr<TrayItem> tray;
    std::string processName; ///< of this program, as others see it

    /// Whether each source has given its first answers.
    bool ready() const;

    /// Brings every source up to date. Takes under 5 ms whatever the services do.
    void refresh(double uptime) const;
};

} // namespace quietlark
