#pragma once

#include "Quietlark/Platform/Platform.h"
#include "tests/support/RecordingTrayItem.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace quietlark::test {

/// What the desktop says, set by hand.
struct Desktop {
    std::optional<double> idleSeconds = 0;
    std::optional<double> secondsSinceKeyDown;
    std::optional<double> secondsSinceLeftMouseDown;
    std::optional<double> secondsSinceRightMouseDown;
    bool leftButtonHeld = false;
    bool rightButtonHeld = false;

    SessionState session;
    std::function<void()> sessionChanged;

    std::optional<AppRef> frontmost;
    std::vector<AppRef> running;
    std::vector<std::string> processes;
    std::map<int, std::string> executables;
    std::map<int, AppInspection> inspections;
    int inspectionCount = 0;
    bool frontmostFillsAScreen = false;
    std::optional<AppWindow> frontWindow;
    std::vector<AppWindow> activated;

    std::optional<std::vector<AppRef>> recordingApps = std::vector<AppRef>{};
    bool physicalMicrophoneRunning = false;
    bool cameraInUse = false;
    std::optional<bool> screenWatched = false;
    std::optional<std::string> captureLines; ///< of the look back
    std::vector<SleepHolder> sleepHolders;

    std::vector<std::string> assertions; ///< the reasons of those that were taken
    bool assertionHeld = false;
    int locks = 0;
    std::function<void()> anotherCopyStarted;
    std::function<void()> activatedByPerson;
    std::function<void()> sessionEnding;

    DesktopLook look;
    std::vector<std::string> announcements;

    void setSession(const SessionState& state) {
        session = state;
        if (sessionChanged) {
            sessionChanged();
        }
    }
};

namespace fake {

template <class Interface> struct Answering : Interface {
    explicit Answering(Desktop& shown) : desktop(shown) {}
    Desktop& desktop;
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

struct Apps final : Answering<Applications> {
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

struct Mic final : AnsweringSource<Microphone> {
    using AnsweringSource::AnsweringSource;
    std::optional<std::vector<AppRef>> recordingApps() const override { return desktop.recordingApps; }
    bool physicalMicrophoneRunning() const override { return desktop.physicalMicrophoneRunning; }
};

struct Cam final : AnsweringSource<Camera> {
    using AnsweringSource::AnsweringSource;
    bool inUse() const override { return desktop.cameraInUse; }
};

struct Watch final : AnsweringSource<ScreenWatch> {
    using AnsweringSource::AnsweringSource;
    std::optional<bool> isWatched() const override { return desktop.screenWatched; }
};

struct Log final : Answering<CaptureLogRunner> {
    using Answering::Answering;
    bool launch(Received, Ended) override { return true; }
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

struct Notice final : Answering<CopyNotice> {
    using Answering::Answering;
    void postAnotherCopyStarted(const std::string&) override {}
    void observeAnotherCopyStarted(const std::string&, std::function<void()> started) override {
        desktop.anotherCopyStarted = std::move(started);
    }
    void observeActivation(std::function<void()> activated) override {
        desktop.activatedByPerson = std::move(activated);
    }
    void observeSessionEnd(std::function<void()> ending) override {
        desktop.sessionEnding = std::move(ending);
    }
};

struct Look final : Answering<DesktopLookSource> {
    using Answering::Answering;
    const DesktopLook& look() const override { return desktop.look; }
    void observe(std::function<void()>) override {}
};

struct Voice final : Answering<Announcer> {
    using Answering::Answering;
    void announce(const std::string& sentence) override { desktop.announcements.push_back(sentence); }
};

} // namespace fake

/// A platform that says what stands in `desktop`, which must outlive it.
Platform platformOf(Desktop& desktop);

} // namespace quietlark::test
