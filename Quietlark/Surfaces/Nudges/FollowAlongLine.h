#pragma once

#include "WumbleCore/Words/Toast.h"

#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// What a nudge says along the way, and when. Times are seconds since the note appeared, all of them from the
/// choreography that the pet moves by.
class FollowAlongLine {
public:
    struct Cue {
        double from = 0;
        std::string text;
        bool isDone = false; ///< the last one: the exercise is over

        bool operator==(const Cue&) const = default;
    };

    explicit FollowAlongLine(const wumble::Toast::FollowAlong& followAlong);

    const std::vector<Cue>& cues() const { return cues_; } ///< in order of time; never empty

    /// The cue that stands at that time; nullptr before the first.
    const Cue* at(double elapsed) const;

    /// The one whose place that cue takes; nullptr for the first.
    const Cue* before(const Cue& cue) const;

    /// When the line or the rounds change next; absent once everything is done.
    std::optional<double> nextChange(double elapsed) const;

    /// The single blinks, steps or breaths, and how many of them are done.
    int rounds() const { return static_cast<int>(roundEnds_.size()); }
    int roundsDone(double elapsed) const;
    /// When one of them, counted from 0, is done, and when all are.
    double roundEnd(int round) const { return roundEnds_.at(static_cast<std::size_t>(round)); }
    double end() const { return cues_.back().from; }

private:
    void add(const wumble::Toast::Blinks& blinks);
    void add(const wumble::Toast::Steps& steps);
    void add(const wumble::Toast::Breaths& breaths);

    std::vector<Cue> cues_;         ///< in order of time
    std::vector<double> roundEnds_; ///< likewise
};

} // namespace quietlark
