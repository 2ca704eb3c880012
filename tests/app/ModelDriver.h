#pragma once

#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Model/StatusLine.h"
#include "Quietlark/Platform/ManualDesktop.h"
#include "tests/app/RecordingSurfaces.h"
#include "tests/support/Dates.h"
#include "tests/support/ManualMainLoop.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <utility>

namespace quietlark::test {

using wumble::test::at;

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
        wumble::Date start = at("2026-03-09T08:00:00Z"));
    ~ModelDriver();
    ModelDriver(const ModelDriver&) = delete;
    ModelDriver& operator=(const ModelDriver&) = delete;

    /// Brings the program up on what the folder holds; what ran before is gone without a word.
    AppModel& launch(AppModel::Running running = AppModel::Running::ticking);

    AppModelServices services();
    Platform platform() { return platformOf(desktop); }

    AppModel& model() { return model_ ? *model_ : launch(); }
    const AppState& state() { return model().state(); }
    std::string status();

    /// Lets time pass and gives what happened meanwhile.
    Told run(double seconds);

    /// What happened since it was last asked.
    Told told() { return std::exchange(told_, {}); }

    void call(bool on = true);

    void lockScreen(bool locked = true) { desktop.setSession({.screenLocked = locked}); }

    static wumble::Calendar calendar() { return wumble::test::calendarIn("Europe/Berlin"); }

    /// Always the first of the choices.
    static wumble::Random choice() {
        return [](std::uint64_t) { return 0; };
    }

private:
    Told told_;

public:
    wumble::test::TemporaryFolder folder;
    ManualMainLoop loop;
    ManualDesktop desktop;
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
