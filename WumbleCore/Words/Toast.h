#pragma once

#include "WumbleCore/Engine/SmartActivity.h"
#include "WumbleCore/Foundation/UUID.h"
#include "WumbleCore/Life/Recap.h"
#include "WumbleCore/Words/WumbleMood.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace wumble {

/// One short message to the person.
struct Toast {
    enum class Placement {
        top,   ///< a note at the top of the working screen
        center ///< a nudge
    };

    struct OpenRecap {
        Recap::Period period = Recap::Period::week;
        Date start;

        bool operator==(const OpenRecap&) const = default;
    };
    /// What a click does.
    using Action = std::variant<OpenRecap>;

    struct Blinks {
        int count = 0;

        bool operator==(const Blinks&) const = default;
    };
    struct Steps {
        std::vector<std::string> texts;

        bool operator==(const Steps&) const = default;
    };
    struct Breaths {
        int count = 0;

        bool operator==(const Breaths&) const = default;
    };
    /// A guided exercise that the toast plays.
    using FollowAlong = std::variant<Blinks, Steps, Breaths>;

    UUID id = UUID::random(); ///< of this showing
    std::string title;
    std::optional<std::string> subtitle;
    WumbleMood mood = WumbleMood::idle;
    double duration = readingTime(title, subtitle); ///< seconds on screen
    std::optional<Action> action;
    Placement placement = Placement::top;
    std::optional<FollowAlong> followAlong;
    bool closable = false;

    bool operator==(const Toast&) const = default;

    /// How long the words want to stay, to the half second and at least four seconds.
    static double readingTime(std::string_view title, const std::optional<std::string>& subtitle);

    /// The next break was put off by so many seconds.
    static Toast snoozed(double by);

    /// The next break waits for the person to finish.
    static Toast afterThis();

    static Toast smartPause(const SmartActivity& activity);

    static Toast recap(Recap::Period period, Date start, Counter wumbles, Counter breaks);

    /// `away` seconds counted as a break, the long one with `asMoveBreak`. `grew` tells what the pet got from
    /// it; absent when it got nothing.
    static Toast welcomeBack(double away, bool asMoveBreak, const std::optional<std::string>& grew);

    /// After an absence that counted for nothing but a new start.
    static Toast freshStart(double nextBreakIn);

    /// Says hello to the pet of the day.
    static Toast arrival(const WumbleDay& day);

    /// The nudges, which stay for their exercise and `linger` seconds more.
    static Toast blink(double linger);
    static Toast posture(double linger);
    static Toast breath(double linger);
};

} // namespace wumble
