#include "Quietlark/Surfaces/Nudges/FollowAlongLine.h"

#include "WumbleCore/Motion/Choreography.h"
#include "WumbleCore/Words/NudgeCopy.h"

#include <algorithm>

namespace quietlark {

namespace Choreography = wumble::Choreography;
namespace NudgeCopy = wumble::NudgeCopy;

FollowAlongLine::FollowAlongLine(const wumble::Toast::FollowAlong& followAlong) {
    std::visit([this](const auto& exercise) { add(exercise); }, followAlong);
}

void FollowAlongLine::add(const wumble::Toast::Blinks& blinks) {
    cues_.push_back({0, std::string(NudgeCopy::blinkCue)});
    for (int blink = 0; blink < blinks.count; ++blink) {
        roundEnds_.push_back(Choreography::blinkDone(blink));
    }
    const double over = roundEnds_.empty() ? 0 : roundEnds_.back();
    cues_.push_back({over, std::string(NudgeCopy::done), true});
}

/// A step is asked for as soon as the one before it is done.
void FollowAlongLine::add(const wumble::Toast::Steps& steps) {
    double from = Choreography::stepLead;
    for (const std::string& text : steps.texts) {
        cues_.push_back({from, text});
        from = Choreography::stepDone(rounds());
        roundEnds_.push_back(from);
    }
    cues_.push_back({from, std::string(NudgeCopy::done), true});
}

void FollowAlongLine::add(const wumble::Toast::Breaths& breaths) {
    double from = Choreography::breathLead;
    for (int breath = 0; breath < breaths.count; ++breath) {
        cues_.push_back({from, std::string(NudgeCopy::breatheIn)});
        cues_.push_back({from + Choreography::breathIn, std::string(NudgeCopy::breatheOut)});
        from += Choreography::breathEvery;
        roundEnds_.push_back(from);
    }
    cues_.push_back({from, std::string(NudgeCopy::done), true});
}

const FollowAlongLine::Cue* FollowAlongLine::at(double elapsed) const {
    const auto next = std::ranges::upper_bound(cues_, elapsed, {}, &Cue::from);
    return next == cues_.begin() ? nullptr : &*std::prev(next);
}

const FollowAlongLine::Cue* FollowAlongLine::before(const Cue& cue) const {
    return &cue == cues_.data() ? nullptr : &cue - 1;
}

std::optional<double> FollowAlongLine::nextChange(double elapsed) const {
    const auto cue = std::ranges::upper_bound(cues_, elapsed, {}, &Cue::from);
    if (cue == cues_.end()) {
        return std::nullopt;
    }
    const auto round = std::ranges::upper_bound(roundEnds_, elapsed);
    return round == roundEnds_.end() ? cue->from : std::min(cue->from, *round);
}

int FollowAlongLine::roundsDone(double elapsed) const {
    return static_cast<int>(std::ranges::upper_bound(roundEnds_, elapsed) - roundEnds_.begin());
}

} // namespace quietlark
