#pragma once

#include "WumbleCore/Engine/SettingsChoices.h"
#include "WumbleCore/Foundation/Date.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

/// What keys do on the break screen, as rules that need no screen.
namespace quietlark {

/// The presses of Esc that belong together.
struct EscapeRun {
    std::vector<wumble::Date> presses;

    bool operator==(const EscapeRun&) const = default;

    /// Joins the run when the last press is less than `window` seconds ago, otherwise begins a new one.
    void press(wumble::Date now, double window);
    void clear() { presses.clear(); }
};

/// What a key meets at the moment it is pressed.
struct KeySituation {
    enum class Showing { resting, celebrating, previewDone };
    Showing showing = Showing::resting;
    bool preview = false;  ///< the break that runs isn't a real one
    bool canEnd = false;   ///< the break may be ended
    bool canSkip = false;  ///< and may be skipped
    bool canSnooze = true; ///< and put off
    wumble::Enforcement enforcement = wumble::Enforcement::balanced;
    wumble::EscapeAction action = wumble::EscapeAction::skip;
    std::optional<double> skipUnlocksIn; ///< seconds; absent when that isn't what is waited for
};

namespace key {
struct Nothing {
    bool operator==(const Nothing&) const = default;
};
struct CloseScreen {
    bool operator==(const CloseScreen&) const = default;
};
struct EndBreak {
    bool operator==(const EndBreak&) const = default;
};
struct Skip {
    bool forced = false; ///< the emergency exit
    bool operator==(const Skip&) const = default;
};
struct Snooze {
    bool operator==(const Snooze&) const = default;
};
/// A line at the foot of the screen.
struct Hint {
    std::string text;
    double seconds = 0;
    bool operator==(const Hint&) const = default;
};
} // namespace key
using KeyAnswer =
    std::variant<key::Nothing, key::CloseScreen, key::EndBreak, key::Skip, key::Snooze, key::Hint>;

KeyAnswer returnPressed(const KeySituation& situation);

/// Takes the press into the run, which is empty again once something came of it.
KeyAnswer escapePressed(EscapeRun& run, const KeySituation& situation, wumble::Date now);

/// Seconds: as long as a press waits for the next.
double escapeWindow(wumble::Enforcement enforcement);

/// A key in the middle of a word must not press anything on a screen that has only just come up: until then no
/// key does anything but Esc.
inline constexpr double keysSleepFor = 0.6;

/// How far the keys and buttons of this screen put a break off, in seconds.
inline constexpr double shortSnooze = 60;
inline constexpr double longSnooze = 300;

} // namespace quietlark
