#pragma once

#include "Quietlark/Model/AppState.h"
#include "WumbleCore/Foundation/Calendar.h"
#include "WumbleCore/Words/WumbleMood.h"

#include <optional>
#include <string>
#include <string_view>

/// The one voice in which every surface says what the break clock is doing, read from the state alone.
namespace quietlark {

/// "Long break in 12:04", "On a call in Zoom · waiting 3 min"
std::string statusLine(const AppState& state, const wumble::Calendar& calendar);

wumble::WumbleMood mood(const AppState& state);

/// What keeps the break waiting, where it is a hold of that kind; null otherwise.
template <class Hold> const Hold* holdOf(const AppState& state) {
    const auto& hold = state.hold.value();
    return hold ? std::get_if<Hold>(&*hold) : nullptr;
}

/// The break waits for the hands to rest.
inline bool isHeldByTyping(const AppState& state) { return holdOf<wumble::hold::Typing>(state) != nullptr; }

/// The mood while a break waits for the hands to rest.
wumble::WumbleMood typingAlongMood(const AppState& state);

/// What the hands do: "dragging", "dictating" or "typing".
std::string_view typingHoldVerb(const AppState& state);

/// Seconds that the present typing hold lasts at most, never below 0; absent without one.
std::optional<double> typingHoldLeft(const AppState& state);

/// There is something that the clock was told not to wait for.
bool notWaitingShown(const AppState& state);

/// Why "don't wait" would not end the wait for a call: a share runs under it.
std::optional<std::string_view> shareKeepsWaitingNote(const AppState& state);

/// "Call's done": what a breather follows.
std::string_view doneWords(const wumble::SmartActivity& activity);

} // namespace quietlark
