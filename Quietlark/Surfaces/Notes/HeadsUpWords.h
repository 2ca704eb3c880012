#pragma once

#include "Quietlark/Model/AppModel.h"
#include "WumbleCore/Foundation/Counter.h"

#include <QStringList>

#include <optional>
#include <string>
#include <vector>

/// What the heads-up and the countdown say, read from the model alone.
namespace quietlark::HeadsUpWords {

/// "Long break in 0:45"; without the time while the clock waits for the hands.
std::string headline(const AppState& state);

/// The same line from long to short, to choose what fits. Never empty.
std::vector<std::string> statusLines(const AppState& state);

/// "2 snoozes left"; absent without a limit.
std::optional<std::string> snoozeNote(const std::optional<wumble::Counter>& remaining);

/// A button of the card, in the order of reading.
struct Button {
    enum class Does { startBreak, snooze, waitForPause, skip };

    Does does = Does::startBreak;
    double seconds = 0; ///< of a snooze
    std::string text;
    std::string spoken; ///< what it is called for those who listen
    std::string help;   ///< on hover; may be empty

    bool operator==(const Button&) const = default;
};

/// What the person may do now.
struct Choices {
    wumble::BreakKind upcoming = wumble::BreakKind::shortBreak;
    bool canWaitForPause = false;
    bool canSnooze = false;
    bool canSkip = false;
    bool isHeld = false;

    bool operator==(const Choices&) const = default;
};
Choices choices(const AppModel& model);
std::vector<Button> buttons(const Choices& choices);

/// What the pill says.
struct Pill {
    bool waitsForTyping = false;
    std::string first;
    std::string second;

    bool operator==(const Pill&) const = default;
};

/// `typedAlong`: the person has typed while the pill was there.
Pill pill(const AppState& state, bool typedAlong);

/// The whole seconds that the pill shows.
wumble::Counter secondsLeft(const AppState& state);

} // namespace quietlark::HeadsUpWords
