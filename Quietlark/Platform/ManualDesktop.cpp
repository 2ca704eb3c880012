#include "Quietlark/Platform/ManualDesktop.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace quietlark {

namespace {

template <class Interface> struct Answering : Interface {
    explicit Answering(ManualDesktop& shown) : desktop(shown) {}
    ManualDesktop& desktop;
};

template <class Interface> struct AnsweringSource : Answering<Interface> {
    using Answering<Interface>::Answering;
    bool ready() const override { return true; }
    void refresh(double) override {}
};

struct Input final : AnsweringSource<InputClock> {
    using AnsweringSource::AnsweringSource;
    std::optional<double> secondsSinceAnyInput() const override { return desktop.idleSeconds; }
    std::optional<double> secondsSinceKeyDown() const override { return desktop.secondsSinceKeyDown; }
    std::optional<double> secondsSinceLeftMouseDown() const override {
        return desktop.secondsSinceLeftMouseDown;
    }
    std::optional<double> secondsSinceRightMouseDown() const override {
        return desktop.secondsSinceRightMouseDown;
    }
    bool leftButtonHeld() const override { return desktop.leftButtonHeld; }
    bool rightButtonHeld() const override { return desktop.rightButtonHeld; }
};

struct Session final : AnsweringSource<SessionWatch> {
    using AnsweringSource::AnsweringSource;
    const SessionState& state() const override { return desktop.session; }
    void observe(std::function<void()> changed) override { desktop.sessionChanged = std::move(changed); }
};

struct Windows final : AnsweringSource<WindowSystem> {
    using AnsweringSource::AnsweringSource;
    std::optional<AppWindow> frontWindow() const override { return desktop.frontWindow; }
    std::vector<AppWindow> windows() const override { return {}; }
    std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow&) override { return {}; }
    std::vector<wumble::GameDetection::Display> displays() const override { return {}; }
    void activate(const AppWindow& window) override { desktop.activated.push_back(window); }
};

struct Programs final : Answering<Applications> {
    using Answering::Answering;
    std::optional<AppRef> frontmost() override { return desktop.frontmost; }
    std::vector<AppRef> running() override { return desktop.running; }
    bool isProcessRunning(std::string_view name) override {
        return std::ranges::find(desktop.processes, name) != desktop.processes.end();
    }
    std::optional<std::string> executable(int pid) override {
        const auto found = desktop.executables.find(pid);
        return found == desktop.executables.end() ? std::nullopt : std::optional(found->second);
    }
    AppInspection inspect(const AppRef& app) override {
        ++desktop.inspectionCount;
        return desktop.inspections[app.pid];
    }
    bool frontmostFillsAScreen() override { return desktop.frontmostFillsAScreen; }
};

struct Recordings final : AnsweringSource<Microphone> {
    using AnsweringSource::AnsweringSource;
    std::optional<std::vector<AppRef>> recordingApps() const override { return desktop.recordingApps; }
    bool physicalMicrophoneRunning() const override { return desktop.physicalMicrophoneRunning; }
};

struct Pictures final : AnsweringSource<Camera> {
    using AnsweringSource::AnsweringSource;
    bool inUse() const override { return desktop.cameraInUse; }
};

struct Watchers final : AnsweringSource<ScreenWatch> {
    using AnsweringSource::AnsweringSource;
    std::optional<bool> isWatched() const override { return desktop.screenWatched; }
};

struct Log final : Answering<CaptureLogRunner> {
    using Answering::Answering;
    bool launch(Received, Ended) override { return desktop.captureLines.has_value(); }
    std::optional<std::string> lookBack() override { return desktop.captureLines; }
    void terminate() override {}
};

struct Holders final : AnsweringSource<SleepHolders> {
    using AnsweringSource::AnsweringSource;
    std::vector<SleepHolder> displaySleepHolders() const override { return desktop.sleepHolders; }
};

struct Assertion final : Answering<SleepAssertion> {
    using Answering::Answering;
    void hold(const std::string& reason) override {
        desktop.assertions.push_back(reason);
        desktop.assertionHeld = true;
    }
    void release() override { desktop.assertionHeld = false; }
};

struct Lock final : Answering<ScreenLock> {
    using Answering::Answering;
    void lockNow() override { ++desktop.locks; }
};

struct NoNotice final : CopyNotice {
    void postAnotherCopyStarted(const std::string&) override {}
    void observeAnotherCopyStarted(const std::string&, std::function<void()>) override {}
    void observeActivation(std::function<void()>) override {}
    void observeSessionEnd(std::function<void()>) override {}
};

} // namespace

Platform platformOf(ManualDesktop& desktop) {
    Platform platform;
    platform.input = std::make_unique<Input>(desktop);
    platform.session = std::make_unique<Session>(desktop);
    platform.windows = std::make_unique<Windows>(desktop);
    platform.applications = std::make_unique<Programs>(desktop);
    platform.microphone = std::make_unique<Recordings>(desktop);
    platform.camera = std::make_unique<Pictures>(desktop);
    platform.screenWatch = std::make_unique<Watchers>(desktop);
    platform.captureLogRunner = std::make_unique<Log>(desktop);
    platform.sleepHolders = std::make_unique<Holders>(desktop);
    platform.sleepAssertion = std::make_unique<Assertion>(desktop);
    platform.screenLock = std::make_unique<Lock>(desktop);
    platform.copyNotice = std::make_unique<NoNotice>();
    platform.processName = "quietlark";
    return platform;
}

} // namespace quietlark
