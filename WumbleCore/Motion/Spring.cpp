#include "WumbleCore/Motion/Spring.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace wumble::Motion {

namespace {

double overshooting(double frequency, double ratio, double t) {
    const double root = std::sqrt(1 - ratio * ratio);
    const double swing = frequency * root * t;
    return 1 - std::exp(-ratio * frequency * t) * (std::cos(swing) + ratio / root * std::sin(swing));
}

double criticallyDamped(double frequency, double t) {
    return 1 - std::exp(-frequency * t) * (1 + frequency * t);
}

double creeping(double frequency, double ratio, double t) {
    const double root = std::sqrt(ratio * ratio - 1);
    const double slow = frequency * (ratio - root);
    const double fast = frequency * (ratio + root);
    return 1 - (fast * std::exp(-slow * t) - slow * std::exp(-fast * t)) / (fast - slow);
}

} // namespace

double Spring::value(double t) const {
    if (!(t > 0)) {
        return 0;
    }
    const double frequency = 2 * std::numbers::pi / response;
    const double ratio = std::max(damping, 0.0);
    const double value = ratio < 1    ? overshooting(frequency, ratio, t)
                         : ratio == 1 ? criticallyDamped(frequency, t)
                                      : creeping(frequency, ratio, t);
    return std::isfinite(value) ? value : 1;
}

} // namespace wumble::Motion
