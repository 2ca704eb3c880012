#pragma once

#include "Quietlark/Platform/LoginItem.h"
#include "Quietlark/Platform/Platform.h"

#include <map>
#include <utility>

namespace quietlark::test {

/// A desktop made of values: a test writes what the machine would answer and reads what was asked of it.
struct FakeDesktop {
    std::optional<double> sinceAnyInput = 0;
    std::optional<double> sinceKeyDown;
    std::optional<double> sinceLeftDown;
    std::optional<double> sinceRightDown;
    bool leftHeld = false;
    bool rightHeld = false;

    SessionState session;

    std::optional<AppWindow> frontWindow = AppWindow{.id = 1, .pid = 77};
    std::optional<AppRef> frontmost;
    std::vector<AppRef> running;
    bool frontmostFillsAScreen = false;
    std::map<int, AppInspection> inspections; ///< by process; others tell nothing

    std::optional<std::vector<AppRef>> recording = std::vector<AppRef>();
    bool physicalMicrophoneRunning = false;
    bool cameraInUse = false;
    std::optional<bool> screenWatched = false;
    std::vector<SleepHolder> sleepHolders;

    // What was asked of it.
    int microphoneReads = 0;
    bool keepsAwake = false;
    std::string awakeReason;
    int locks = 0;
    std::vector<AppWindow> activated;

    std::function<void()> sessionChanged;

    /// The session as its watch tells it.
    void setSession(SessionState state) {
        session = state;
        if (sessionChanged) {
            sessionChanged();
        }
    }
    void lockScreen(bool locked = true) { setSession({.screenLocked = locked}); }
};

namespace fake {

/// A source that is always up to date.
template <class Interface> class Ready : public Interface {
public:
    explicit Ready(FakeDesktop& desktop) : desktop_(desktop) {}
    bool ready() const override { return true; }
    void refresh(double) override {}

protected:
    FakeDesktop& desktop_;
};

class Input final : public Ready<InputClock> {
public:
    using Ready::Ready;
    std::optional<double> secondsSinceAnyInput() const override { return desktop_.sinceAnyInput; }
    std::optional<double> secondsSinceKeyDown() const override { return desktop_.sinceKeyDown; }
    std::optional<double> secondsSinceLeftMouseDown() const override { return desktop_.sinceLeftDown; }
    std::optional<double> secondsSinceRightMouseDown() const override { return desktop_.sinceRightDown; }
    bool leftButtonHeld() const override { return desktop_.leftHeld; }
    bool rightButtonHeld() const override { return desktop_.rightHeld; }
};

class Session final : public Ready<SessionWatch> {
public:
    using Ready::Ready;
    const SessionState& state() const override { return desktop_.session; }
    void observe(std::function<void()> changed) override { desktop_.sessionChanged = std::move(changed); }
};

class Windows final : public Ready<WindowSystem> {
public:
    using Ready::Ready;
    std::optional<AppWindow> frontWindow() const override { return desktop_.frontWindow; }
    std::vector<AppWindow> windows() const override { return {}; }
    std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow&) override { return {}; }
    std::vector<wumble::GameDetection::Display> displays() const override { return {}; }
    void activate(const AppWindow& window) override { desktop_.activated.push_back(window); }
};

class Apps final : public Applications {
public:
    explicit Apps(FakeDesktop& desktop) : desktop_(desktop) {}
    std::optional<AppRef> frontmost() override { return desktop_.frontmost; }
    std::vector<AppRef> running() override { return desktop_.running; }
    bool isProcessRunning(std::string_view) override { return false; }
    std::optional<std::string> executable(int pid) override { return "/proc/" + std::to_string(pid); }
    AppInspection inspect(const AppRef& app) override { return desktop_.inspections[app.pid]; }
    bool frontmostFillsAScreen() override { return desktop_.frontmostFillsAScreen; }

private:
    FakeDesktop& desktop_;
};

class Recorder final : public Ready<Microphone> {
public:
    using Ready::Ready;
    std::optional<std::vector<AppRef>> recordingApps() const override {
        ++desktop_.microphoneReads;
        return desktop_.recording;
    }
    bool physicalMicrophoneRunning() const override { return desktop_.physicalMicrophoneRunning; }
};

class Lens final : public Ready<Camera> {
public:
    using Ready::Ready;
    bool inUse() const override { return desktop_.cameraInUse; }
};

class Watcher final : public Ready<ScreenWatch> {
public:
    using Ready::Ready;
    std::optional<bool> isWatched() const override { return desktop_.screenWatched; }
};

class Holders final : public Ready<SleepHolders> {
public:
    using Ready::Ready;
    std::vector<SleepHolder> displaySleepHolders() const override { return desktop_.sleepHolders; }
};

/// A log that can't be read: it never has a word on a capture, nor does anything wait for one.
class SilentLog final : public CaptureLogRunner {
public:
    bool launch(Received, Ended) override { return false; }
    std::optional<std::string> lookBack() override { return std::nullopt; }
    void terminate() override {}
};

class Awake final : public SleepAssertion {
public:
    explicit Awake(FakeDesktop& desktop) : desktop_(desktop) {}
    void hold(const std::string& reason) override {
        desktop_.keepsAwake = true;
        desktop_.awakeReason = reason;
    }
    void release() override { desktop_.keepsAwake = false; }

private:
    FakeDesktop& desktop_;
};

class Lock final : public ScreenLock {
public:
    explicit Lock(FakeDesktop& desktop) : desktop_(desktop) {}
    void lockNow() override { ++desktop_.locks; }

private:
    FakeDesktop& desktop_;
};

class SilentNotice final : public CopyNotice {
public:
    void postAnotherCopyStarted(const std::string&) override {}
    void observeAnotherCopyStarted(const std::string&, std::function<void()>) override {}
    void observeActivation(std::function<void()>) override {}
    void observeSessionEnd(std::function<void()>) override {}
};

} // namespace fake

/// The seam, filled with the desktop's values; the desktop outlives it.
inline Platform fakePlatform(FakeDesktop& desktop) {
    return {.input = std::make_unique<fake::Input>(desktop),
            .session = std::make_unique<fake::Session>(desktop),
            .windows = std::make_unique<fake::Windows>(desktop),
            .applications = std::make_unique<fake::Apps>(desktop),
            .microphone = std::make_unique<fake::Recorder>(desktop),
            .camera = std::make_unique<fake::Lens>(desktop),
            .screenWatch = std::make_unique<fake::Watcher>(desktop),
            .captureLogRunner = std::make_unique<fake::SilentLog>(),
            .sleepHolders = std::make_unique<fake::Holders>(desktop),
            .sleepAssertion = std::make_unique<fake::Awake>(desktop),
            .screenLock = std::make_unique<fake::Lock>(desktop),
            .copyNotice = std::make_unique<fake::SilentNotice>(),
            .processName = "quietlark"};
}

struct FakeLoginItem final : LoginItem {
    bool enabled = false;
    std::optional<std::string> refusal;

    bool isEnabled() const override { return enabled; }
    bool canRegister() const override { return !refusal; }
    std::optional<std::string> set(bool on) override {
        enabled = refusal ? enabled : on;
        return refusal;
    }
};

} // namespace quietlark::test
