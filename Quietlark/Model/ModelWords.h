#pragma once

#include "WumbleCore/Foundation/Calendar.h"
#include "WumbleCore/Words/Toast.h"

#include <optional>
#include <string>
#include <string_view>

/// What the model says of its own accord. A "{}" in a sentence is filled when it is said.
namespace quietlark::ModelWords {

struct Message {
    std::string_view title;
    std::string_view subtitle;
    wumble::WumbleMood mood = wumble::WumbleMood::peek;
    bool closable = false;
};

inline constexpr Message pauseEnded{
    .title = "Wumble's back", .subtitle = "Breaks are on again.", .closable = true};
inline constexpr Message officeHoursBegan{.title = "Wumble's up!", .subtitle = "{}", .closable = true};
inline constexpr Message officeHoursEnded{.title = "That's a wrap",
                                          .subtitle = "Wumble's going to sleep. See you {}!",
                                          .mood = wumble::WumbleMood::sleeping,
                                          .closable = true};
/// Of a break that ended with no break screen up.
inline constexpr Message breakComplete{
    .title = "{}", .subtitle = "{}", .mood = wumble::WumbleMood::celebrate, .closable = true};
inline constexpr Message pausedOpenly{.title = "Paused until you resume",
                                      .subtitle = "Wumble will nap until then.",
                                      .mood = wumble::WumbleMood::sleeping};
inline constexpr Message pausedFor{.title = "Paused for {}",
                                   .subtitle = "Wumble will nap until then.",
                                   .mood = wumble::WumbleMood::sleeping};
inline constexpr Message pausedUntilTomorrow{.title = "Paused until tomorrow",
                                             .subtitle = "Breaks pick up again tomorrow.",
                                             .mood = wumble::WumbleMood::sleeping};
inline constexpr Message welcomedAsleep{
    .title = "Take a look around",
    .subtitle = "Breaks stay off until you wake Wumble up, in Settings or the tray.",
    .mood = wumble::WumbleMood::sleeping};
inline constexpr Message welcomedAwake{.title = "Wumble's on",
                                       .subtitle = "First break in {}. I'll be up in the tray."};
inline constexpr Message alreadyRunning{
    .title = "Wumble's already here", .subtitle = "It's up in the tray.", .closable = true};

inline constexpr std::string_view breakCompleteTitle = "Break complete";

/// Spoken, with nothing to see.
inline constexpr std::string_view breakSkippedSpoken = "Break skipped";
inline constexpr std::string_view notWaitingSpoken = "Not waiting until your next break";

/// The message as a note at the top, for its reading time.
wumble::Toast toast(const Message& message, std::string_view filling = {});

/// The same with a filling of its own for each line.
wumble::Toast toast(const Message& message, std::string_view titleFilling, std::string_view subtitleFilling);

/// Title and subtitle in one breath, for those who listen.
std::string spoken(const wumble::Toast& toast);

/// "Breaks are on until 18:00.", without the time where none lies ahead.
std::string breaksOnUntil(const std::optional<wumble::Date>& end, wumble::Date now,
                          const wumble::Calendar& calendar);

/// "soon", "at 10:00", "tomorrow", "Monday"
std::string seeYou(const std::optional<wumble::Date>& next, wumble::Date now,
                   const wumble::Calendar& calendar);

/// "at 10:00", "tomorrow at 10:00", "Monday at 10:00", "on your next workday"
std::string backLine(const std::optional<wumble::Date>& next, wumble::Date now,
                     const wumble::Calendar& calendar);

} // namespace quietlark::ModelWords
