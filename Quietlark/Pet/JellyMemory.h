#pragma once

#include "Quietlark/Pet/WumblePose.h"
#include "WumbleCore/Life/WumbleDay.h"
#include "WumbleCore/Words/WumbleMood.h"

#include <map>
#include <vector>

namespace quietlark {

/// Where the pointer draws the pet's eyes, -1 to 1 each, and how far the body follows.
struct Look {
    double x = 0;
    double y = 0;
    double lean = 0;

    bool operator==(const Look&) const = default;
};

/// Everything that decides the firm pose apart from time. Times are seconds on the view's clock.
struct Doing {
    wumble::WumbleMood mood{};
    double moodStart = 0;
    std::optional<double> poke;     ///< when it was last poked
    std::optional<double> reaction; ///< when a gesture was asked for
    wumble::WumbleGesture reactionGesture{};
    std::optional<double> letGo; ///< when a pull ended
    bool gazes = false;          ///< whether it follows the pointer
    wumble::WumbleDay day;
    bool calm = false;
    double clockStart = 0;

    bool operator==(const Doing&) const = default;
};

/// What a view remembers of the last seconds. It only saves work and smooths the pointer: without it every
/// moment would be worked out the same.
class JellyMemory {
public:
    /// A time before the last look begins the list anew. At least two seconds are kept.
    void note(const Look& look, double t);

    /// Forgets the tops when something else is going on now.
    void keep(const Doing& doing);

    /// The look at that time, between the ones noted around it; none noted is straight ahead.
    Look pointer(double t) const;

    std::map<long long, wumble::Point> tops; ///< by number of the sample

private:
    struct NotedLook {
        double t = 0;
        Look look;
    };

    std::optional<Doing> doing_;
    std::vector<NotedLook> looks_; ///< oldest first
};

} // namespace quietlark
