#pragma once

#include "Quietlark/Model/AppState.h"
#include "Quietlark/Pet/MenuBarIcon.h"
#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Foundation/Calendar.h"
#include "WumbleCore/Life/Recap.h"
#include "WumbleCore/Storage/DaySummary.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// What stands in the tray and in its popover, read from the model's state alone.
namespace quietlark::TrayWords {

/// How the icon looks: the nearer the break, the sleepier.
MenuBarIcon::Mood menuBarMood(const AppState& state, double breakTarget);

/// The few letters beside the icon; empty when the person wants none.
std::string menuBarTitle(const AppState& state);

/// What is spoken of the icon.
std::string accessibilityLabel(const AppState& state, const wumble::Calendar& calendar);

/// What the status card says: words, then a time or a remark that belongs to them.
struct Status {
    enum class Tone { calm, counting, held };

    std::string words;
    std::string clock;  ///< "12:04"; empty where nothing counts
    std::string detail; ///< a line below; empty for none
    std::string hint;   ///< and one about what the person is doing; empty for none
    Tone tone = Tone::calm;
    bool emphasized = false; ///< the clock stands out: the break waits for a pause

    bool operator==(const Status&) const = default;
};

Status status(const AppState& state, const wumble::BreakEngine& engine, const wumble::Calendar& calendar);

/// What stands in the row under the status.
namespace slot {
struct None {
    bool operator==(const None&) const = default;
};
/// The person may go on without the wait.
struct DontWait {
    wumble::SmartActivity activity;
    bool operator==(const DontWait&) const = default;
};
/// They chose to, and may take it back.
struct NotWaiting {
    wumble::SmartActivity activity;
    bool operator==(const NotWaiting&) const = default;
};
struct ShareKeepsWaiting {
    std::string text;
    bool operator==(const ShareKeepsWaiting&) const = default;
};
} // namespace slot
using Slot = std::variant<slot::None, slot::DontWait, slot::NotWaiting, slot::ShareKeepsWaiting>;

Slot slotOf(const AppState& state);

inline constexpr std::string_view dontWait = "Don't wait this time";
inline constexpr std::string_view notWaiting = "Not waiting";
inline constexpr std::string_view notWaitingHowLong = "Not waiting until your next break";
inline constexpr std::string_view tillNextBreak = "till next break";
inline constexpr std::string_view waitAgain = "Wait again";
inline constexpr std::string_view waitsAgain = "Wumble will wait again";

std::string dontWaitHelp(const wumble::SmartActivity& activity);
/// The same for those who listen, who can't hover.
std::string dontWaitSpoken(const wumble::SmartActivity& activity);
std::string waitAgainHelp(const wumble::SmartActivity& activity);

enum class Action { wakeUp, resume, breakNow, snooze, skip, pause };

struct ActionRow {
    Action action{};
    std::string label;

    bool operator==(const ActionRow&) const = default;
};

/// The rows that the phase allows, from the top.
std::vector<ActionRow> actions(const AppState& state, const wumble::BreakEngine& engine);

/// "3 breaks · 12 min rested"
std::string todayCounts(const wumble::DaySummary& day);

inline constexpr std::string_view today = "Today";
inline constexpr std::string_view crew = "wumble crew & stats";
inline constexpr std::string_view crewHelp = "This week's Wumbles together, with your numbers";
inline constexpr std::string_view settings = "Settings";
inline constexpr std::string_view otherBreaks = "Other breaks";
inline constexpr std::string_view more = "More";
inline constexpr std::string_view restart = "Restart break timers";
inline constexpr std::string_view turnOff = "Turn Wumble off";
inline constexpr std::string_view wakeUp = "Wake Wumble up";
inline constexpr std::string_view quit = "Quit Quietlark";
inline constexpr std::string_view open = "Open Quietlark";

/// Tells of the recap that waits to be seen.
std::string_view recapLine(const wumble::Recap& recap, wumble::Date now);

/// "Matcha Wumble"
std::string petTitle(const wumble::WumbleDay& day, std::string_view familyName);

/// A break of another kind or length than the one that follows.
struct OtherBreak {
    std::string label;
    std::optional<wumble::BreakKind> kind;
    std::optional<double> duration;

    bool operator==(const OtherBreak&) const = default;
};
std::vector<OtherBreak> otherBreaksOf(const wumble::WumbleSettings& choices);

/// Seconds; absent until the person resumes.
struct Pause {
    std::string_view label;
    enum class Until { seconds, tomorrow, resumed } until{};
    double seconds = 0;
};
inline constexpr Pause pauses[] = {{"30 minutes", Pause::Until::seconds, 1800},
                                   {"1 hour", Pause::Until::seconds, 3600},
                                   {"2 hours", Pause::Until::seconds, 7200},
                                   {"Until tomorrow", Pause::Until::tomorrow},
                                   {"Until I resume", Pause::Until::resumed}};

} // namespace quietlark::TrayWords
