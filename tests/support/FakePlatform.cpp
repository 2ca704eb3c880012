#include "tests/support/FakePlatform.h"

namespace quietlark::test {

Platform platformOf(Desktop& desktop) {
    Platform platform;
    platform.input = std::make_unique<fake::Input>(desktop);
    platform.session = std::make_unique<fake::Session>(desktop);
    platform.windows = std::make_unique<fake::Windows>(desktop);
    platform.applications = std::make_unique<fake::Apps>(desktop);
    platform.microphone = std::make_unique<fake::Mic>(desktop);
    platform.camera = std::make_unique<fake::Cam>(desktop);
    platform.screenWatch = std::make_unique<fake::Watch>(desktop);
    platform.captureLogRunner = std::make_unique<fake::Log>(desktop);
    platform.sleepHolders = std::make_unique<fake::Holders>(desktop);
    platform.sleepAssertion = std::make_unique<fake::Assertion>(desktop);
    platform.screenLock = std::make_unique<fake::Lock>(desktop);
    platform.copyNotice = std::make_unique<fake::Notice>(desktop);
    platform.look = std::make_unique<fake::Look>(desktop);
    platform.announcer = std::make_unique<fake::Voice>(desktop);
    platform.tray = std::make_unique<RecordingTrayItem>();
    platform.processName = "quietlark";
    return platform;
}

} // namespace quietlark::test
