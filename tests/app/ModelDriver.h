#pragma once

#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Model/StatusLine.h"
#include "tests/app/RecordingSurfaces.h"
#include "tests/support/Dates.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/ManualMainLoop.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <utility>

namespace quietlark::test {

using wumble::test::at;

/// In memory where the machine offers that: a week saves thousands of times.
inline std::filesystem::path quickFolder() {
    const std::filesystem::path memory = "/dev/shm";
    return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
}

/// Never has a word on a capture, and nothing waits for one: what a test sees doesn't hang on the log's thread.
struct UnreadableLog final : CaptureLogRunner {
    bool launch(Received, Ended) override { return false; }
    std::optional<std::string> lookBack() override { return std::nullopt; }
    void terminate() override {}
};

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

/// A model on a Monday morning in Berlin with a person at the machine, welcomed long ago and greeted
/// today, and without nudges.
class ModelDriver {
public:
    explicit ModelDriver(
        const std::function<void(wumble::WumbleSettings&)>& choose = [](auto&) {},
        wumble::Date start = at("2026-03-09T08:00:00Z"))
        : loop(start) {
        desktop.frontWindow = AppWindow{.id = 1, .pid = 77};
        wumble::Storage storage(folder.path());
        wumble::WumbleSettings settings;
        settings.nudgesBetween = 0;
        choose(settings);
        storage.save(settings);
        wumble::WumbleLife life;
        life.welcomed = true;
        life.greetedDay = life.today(start, calendar(), choice()).day;
        storage.save(life);
    }

    /// Brings the program up on what the folder holds; what ran before is gone without a word.
    AppModel& launch(AppModel::Running running = AppModel::Running::ticking) {
        model_.reset();
        platform_ = platform();
        model_ = std::make_unique<AppModel>(folder.path(), services());
        model_->install({&statusItem, &headsUp, &overlay, &toasts, &countdown});
        statusItem.closed = [this] { model_->popoverDidClose(); };
        model_->start(running);
        return *model_;
    }

    AppModelServices services() {
        return {.mainLoop = loop,
                .platform = platform_,
                .sounds = &sounds,
                .loginItem = &loginItem,
                .accessibility = &accessibility,
                .calendar = calendar(),
                .random = choice()};
    }

    Platform platform() {
        Platform made = platformOf(desktop);
        made.captureLogRunner = std::make_unique<UnreadableLog>();
        return made;
    }

    AppModel& model() { return model_ ? *model_ : launch(); }
    const AppState& state() { return model().state(); }
    std::string status() { return statusLine(state(), calendar()); }

    /// Lets time pass and gives what happened meanwhile.
    Told run(double seconds) {
        model();
        loop.advance(seconds);
        return told();
    }

    /// What happened since it was last asked.
    Told told() { return std::exchange(told_, {}); }

    void call(bool on = true) {
        desktop.recordingApps = on ? std::vector{AppRef{.pid = 5, .name = "Zoom"}} : std::vector<AppRef>();
    }

    void lockScreen(bool locked = true) { desktop.setSession({.screenLocked = locked}); }

    static wumble::Calendar calendar() { return wumble::test::calendarIn("Europe/Berlin"); }

    /// Always the first of the choices.
    static wumble::Random choice() {
        return [](std::uint64_t) { return 0; };
    }

private:
    Told told_;

public:
    wumble::test::TemporaryFolder folder{quickFolder()};
    ManualMainLoop loop;
    Desktop desktop;
    RecordingStatusItem statusItem;
    RecordingHeadsUp headsUp{told_};
    RecordingOverlay overlay{told_};
    RecordingToasts toasts{told_};
    RecordingCountdown countdown{told_};
    RecordingSounds sounds{told_};
    RecordingAccessibility accessibility{told_};
    FakeLoginItem loginItem;

private:
    Platform platform_;
    std::unique_ptr<AppModel> model_;
};

} // namespace quietlark::test
