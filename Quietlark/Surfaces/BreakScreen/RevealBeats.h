#pragma once

#include "WumbleCore/Foundation/Date.h"
#include "WumbleCore/Foundation/UUID.h"
#include "WumbleCore/Life/WumbleDay.h"

#include <optional>
#include <string>

namespace quietlark {

/// How far a reveal has come.
struct RevealBeats {
    std::optional<wumble::UUID> token; ///< of the reveal they belong to
    bool crouched = false;             ///< the pet gathers itself
    bool popped = false;               ///< and has its new look
    bool tagged = false;               ///< what is new has its name on it
    std::optional<wumble::Date> burst; ///< when the confetti began to fly; absent when none does

    bool operator==(const RevealBeats&) const = default;
};

/// One reveal, from which its beats follow at any time: a screen that is built anew in the middle joins in.
struct Reveal {
    wumble::UUID token;
    wumble::Date startedAt;
    bool grew = false;      ///< the pet got something new
    bool milestone = false; ///< and the day or the streak is one to remember
    bool still = false;     ///< for those who want less motion: no waiting, no confetti

    bool operator==(const Reveal&) const = default;

    /// A time before the start, as a clock that is put back brings, has it all done.
    RevealBeats beats(wumble::Date now) const;

    wumble::Date poppedAt() const;
    wumble::Date taggedAt() const;

    /// The pet's own scale, about its foot.
    double petScale(wumble::Date now) const;

    /// What is pinned to the pet: 0 before it, on its way past 1, and 1.
    double landed(wumble::Date now) const;

    /// From then on nothing moves any more.
    wumble::Date movingUntil() const;
};

/// Whether a reveal brought the pet something. `announcement`: that of the phase.
bool revealGrew(const wumble::WumbleDay& today, const std::optional<std::string>& announcement);

/// Whether it deserves the big confetti: the last thing of a day, or the first of one that fills a week.
bool isMilestone(const wumble::WumbleDay& today, const std::optional<std::string>& announcement,
                 wumble::Counter streak);

} // namespace quietlark
