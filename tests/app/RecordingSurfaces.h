#pragma once

#include "Quietlark/Model/Accessibility.h"
#include "Quietlark/Model/SoundPlayer.h"
#include "Quietlark/Model/Surfaces.h"

#include <sstream>
#include <string>
#include <vector>

namespace quietlark::test {

/// What was to be seen and heard, in order, as short texts: whatever wasn't expected shows up in a comparison.
using Told = std::vector<std::string>;

struct RecordingStatusItem final : StatusItem {
    bool popoverShown = false;
    std::function<void()> closed = [] {};

    void refresh() override {}
    bool isPopoverShown() const override { return popoverShown; }
    void closePopover() override {
        popoverShown = false;
        closed();
    }
};

/// A surface that is either up or not, and tells when that changes.
template <class Interface> class RecordingPanel : public Interface {
public:
    RecordingPanel(Told& told, std::string name) : told_(told), name_(std::move(name)) {}

    void show() override {
        isUp = true;
        told_.push_back(name_);
    }
    void hide() override {
        if (std::exchange(isUp, false)) {
            told_.push_back(name_ + " leaves");
        }
    }
    void updateSharing() override { ++sharingUpdates; }

    bool isUp = false;
    int sharingUpdates = 0;

protected:
    Told& told_;

private:
    std::string name_;
};

struct RecordingHeadsUp final : RecordingPanel<HeadsUp> {
    explicit RecordingHeadsUp(Told& told) : RecordingPanel(told, "heads-up") {}
    void answer(const wumble::Toast& toast) override {
        isUp = false;
        told_.push_back("heads-up answers: " + toast.title);
    }
};

struct RecordingCountdown final : RecordingPanel<Countdown> {
    explicit RecordingCountdown(Told& told) : RecordingPanel(told, "countdown") {}
    void restoreSize() override {}
};

struct RecordingToasts final : Toasts {
    explicit RecordingToasts(Told& told) : told_(told) {}

    void show(const wumble::Toast& toast) override {
        last = toast;
        told_.push_back("toast: " + toast.title + (toast.subtitle ? " | " + *toast.subtitle : ""));
        shown();
    }
    void updateSharing() override { ++sharingUpdates; }

    std::optional<wumble::Toast> last;
    std::function<void()> shown = [] {};
    int sharingUpdates = 0;

private:
    Told& told_;
};

struct RecordingOverlay final : BreakScreenPresenting {
    explicit RecordingOverlay(Told& told) : told_(told) {}

    void show(const wumble::ActiveBreak& activeBreak) override {
        isUp = true;
        told_.push_back(activeBreak.isPreview() ? "preview screen"
                                                : std::string(enumText(activeBreak.kind)) + " break screen");
    }
    void hide(const std::optional<BreakScreenPhase>&) override {
        isUp = false;
        told_.push_back("break screen leaves");
    }

    bool isUp = false;

private:
    Told& told_;
};

struct RecordingSounds final : SoundPlayer {
    explicit RecordingSounds(Told& told) : told_(told) {}
    void play(wumble::Cue cue, double volume) override {
        std::ostringstream line;
        line << "sound: " << enumText(cue) << " at " << volume;
        told_.push_back(line.str());
    }

private:
    Told& told_;
};

struct RecordingAccessibility final : Accessibility {
    explicit RecordingAccessibility(Told& told) : told_(told) {}
    void announce(const std::string& sentence) override { told_.push_back("spoken: " + sentence); }
    bool reducesMotion() const override { return false; }

private:
    Told& told_;
};

} // namespace quietlark::test
