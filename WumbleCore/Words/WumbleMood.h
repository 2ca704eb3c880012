#pragma once

namespace wumble {

/// What the pet is up to, as its body shows it.
enum class WumbleMood {
    idle,
    peek,
    demonstrate,
    resting,
    celebrate,
    humming,
    snoozed,
    waiting,
    talking,
    pulled,
    nodding,
    sleeping,
    blinking,
    stretching,
    sittingUp,
    breathing,
    gazing,
};

} // namespace wumble
