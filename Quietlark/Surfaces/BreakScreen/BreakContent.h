#pragma once

#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Surfaces/BreakScreen/BreakStage.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quietlark {

/// What the break screen is about. Another one brings other words.
enum class BreakScene { empty, running, previewing, finished, celebrating, previewDone };

/// What can be pressed.
enum class BreakControl { endBreak, endPreview, snoozeShort, snoozeLong, skip, skipThisBreak, backToWork };

std::string_view title(BreakControl control);

/// How far the break has run.
struct RingValue {
    double progress = 0; ///< 0 to 1
    std::string label;   ///< "0:45"

    bool operator==(const RingValue&) const = default;
};

/// All that one window of the break screen shows at one moment, before anything is laid out.
struct BreakContent {
    BreakScene scene = BreakScene::empty;
    bool isPrimary = false;
    std::string title;
    std::string subtitle;
    std::optional<RingValue> ring;
    std::string timeLeft; ///< instead of a ring, where there is none
    std::vector<BreakControl> controls;
    std::string footer;
    bool footerIsHint = false;
    std::string clock; ///< the time of day
    bool showsLock = false;
    bool showsDots = false;
    std::string tag; ///< what the pet just got
    std::optional<wumble::Counter> streak;
    wumble::WumbleDay pet;
    wumble::WumbleMood mood = wumble::WumbleMood::idle;
    double petSize = 0; ///< points

    bool operator==(const BreakContent&) const = default;
};

/// `isPrimary`: the window that the person looks at; the others have no buttons and few words.
BreakContent breakContent(const AppModel& model, const BreakStage& stage, bool isPrimary, wumble::Date now);

/// What the screen shows: while it leaves, what it last showed.
std::optional<BreakScreenPhase> shownPhase(const AppModel& model, const BreakStage& stage);

/// The break that the screen is about; absent when there is none.
std::optional<wumble::ActiveBreak> currentBreak(const AppModel& model, const BreakStage& stage);

/// Whether the model is in the middle of ending the break or the screen: what stands goes on being shown until it has
/// told the screen what comes.
bool isBetweenScenes(const AppModel& model, const BreakStage& stage);

/// Whether a break only waits for being ended.
bool isFinished(const wumble::ActiveBreak& shown, wumble::Date now, bool holdUntilEndPressed);

/// "new · paws": what the last reveal brought; empty before the first.
std::string tagText(const wumble::WumbleDay& today);

} // namespace quietlark
