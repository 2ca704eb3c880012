#include "Quietlark/Renderers/PreviewPlatform.h"

#include <utility>

namespace quietlark {

namespace {

template <class Interface> struct Settled : Interface {
    bool ready() const override { return true; }
    void refresh(double) override {}
};

struct Input final : Settled<InputClock> {
    explicit Input(const PreviewMachine& shown) : machine(shown) {}
    std::optional<double> secondsSinceAnyInput() const override { return machine.idleSeconds; }
    std::optional<double> secondsSinceKeyDown() const override { return machine.secondsSinceKeyDown; }
    std::optional<double> secondsSinceLeftMouseDown() const override { return std::nullopt; }
    std::optional<double> secondsSinceRightMouseDown() const override { return std::nullopt; }
    bool leftButtonHeld() const override { return machine.leftButtonHeld; }
    bool rightButtonHeld() const override { return false; }
    const PreviewMachine& machine;
};

struct Session final : Settled<SessionWatch> {
    const SessionState& state() const override { return state_; }
    void observe(std::function<void()>) override {}
    SessionState state_;
};

struct Windows final : Settled<WindowSystem> {
    std::optional<AppWindow> frontWindow() const override { return std::nullopt; }
    std::vector<AppWindow> windows() const override { return {}; }
    std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow&) override { return {}; }
    std::vector<wumble::GameDetection::Display> displays() const override { return {}; }
    void activate(const AppWindow&) override {}
};

struct Programs final : Applications {
    std::optional<AppRef> frontmost() override { return std::nullopt; }
    std::vector<AppRef> running() override { return {}; }
    bool isProcessRunning(std::string_view) override { return false; }
    std::optional<std::string> executable(int) override { return std::nullopt; }
    AppInspection inspect(const AppRef&) override { return {}; }
    bool frontmostFillsAScreen() override { return false; }
};

struct Silence final : Settled<Microphone> {
    std::optional<std::vector<AppRef>> recordingApps() const override { return std::vector<AppRef>{}; }
    bool physicalMicrophoneRunning() const override { return false; }
};

struct Dark final : Settled<Camera> {
    bool inUse() const override { return false; }
};

struct Unwatched final : Settled<ScreenWatch> {
    std::optional<bool> isWatched() const override { return false; }
};

struct NoLog final : CaptureLogRunner {
    bool launch(Received, Ended) override { return false; }
    std::optional<std::string> lookBack() override { return std::nullopt; }
    void terminate() override {}
};

struct NoHolders final : Settled<SleepHolders> {
    std::vector<SleepHolder> displaySleepHolders() const override { return {}; }
};

struct NoAssertion final : SleepAssertion {
    void hold(const std::string&) override {}
    void release() override {}
};

struct NoLock final : ScreenLock {
    void lockNow() override {}
};

struct NoNotice final : CopyNotice {
    void postAnotherCopyStarted(const std::string&) override {}
    void observeAnotherCopyStarted(const std::string&, std::function<void()>) override {}
    void observeActivation(std::function<void()>) override {}
    void observeSessionEnd(std::function<void()>) override {}
};

} // namespace

Platform makePreviewPlatform(const PreviewMachine& machine) {
    Platform platform;
    platform.input = std::make_unique<Input>(machine);
    platform.session = std::make_unique<Session>();
    platform.windows = std::make_unique<Windows>();
    platform.applications = std::make_unique<Programs>();
    platform.microphone = std::make_unique<Silence>();
    platform.camera = std::make_unique<Dark>();
    platform.screenWatch = std::make_unique<Unwatched>();
    platform.captureLogRunner = std::make_unique<NoLog>();
    platform.sleepHolders = std::make_unique<NoHolders>();
    platform.sleepAssertion = std::make_unique<NoAssertion>();
    platform.screenLock = std::make_unique<NoLock>();
    platform.copyNotice = std::make_unique<NoNotice>();
    return platform;
}

} // namespace quietlark
