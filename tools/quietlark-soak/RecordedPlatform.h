#pragma once

#include "Quietlark/Platform/Platform.h"
#include "tools/quietlark-soak/Recording.h"

namespace quietlark::soak {

/// What a person would be doing at the machine now.
struct RecordedPerson {
    double idleSeconds = 0;
    std::optional<double> secondsSinceKeyDown;
    std::optional<wumble::SmartActivity> activity;
};

/// The services of this desktop, kept at work as ever, with the recorded person in front of them, who must outlive it.
Platform withPerson(Platform desktop, const RecordedPerson& person);

} // namespace quietlark::soak
