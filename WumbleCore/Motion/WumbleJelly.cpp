#include "WumbleCore/Motion/WumbleJelly.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace wumble {

namespace {

constexpr double longestMemory = 1.6;   ///< seconds
constexpr double memoryDecay = 3.2;     ///< time constants after which a push is forgotten
constexpr double largestDamping = 0.95; ///< the swing needs some room below the critical damping

double angular(double frequency) { return frequency * 2 * std::numbers::pi; }

/// exp(-zwt) sin(wd t), the swing of the spring `t` seconds after a push.
struct Swing {
    double decay;  ///< zw
    double damped; ///< wd

    explicit Swing(const WumbleJelly& jelly) {
        const double w = angular(jelly.frequency);
        const double z = std::min(jelly.damping, largestDamping);
        decay = z * w;
        damped = w * std::sqrt(1 - z * z);
    }

    double at(double t) const { return std::exp(-decay * t) * std::sin(damped * t); }
};

double acceleration(double newer, double here, double older) {
    return (newer + older - 2 * here) / (WumbleJelly::step * WumbleJelly::step);
}

/// A history of absurd lengths gives no number, and then no jiggle.
double orNone(double value) { return std::isnan(value) ? 0 : value; }

} // namespace

double WumbleJelly::memory() const {
    const double decay = angular(frequency) * damping;
    if (give == 0) {
        return 0;
    }
    return decay > 0 ? std::min(memoryDecay / decay, longestMemory) : longestMemory;
}

int WumbleJelly::samples() const { return give == 0 ? 0 : static_cast<int>(memory() / step) + 2; }

Point WumbleJelly::jiggle(std::span<const Point> history) const {
    if (!(give > 0) || history.size() < 3) {
        return {};
    }
    const Swing swing(*this);
    Point sum;
    for (std::size_t k = 1; k + 1 < history.size(); ++k) {
        const double weight = swing.at(static_cast<double>(k) * step) / swing.damped * step;
        sum.x -= acceleration(history[k - 1].x, history[k].x, history[k + 1].x) * weight;
        sum.y -= acceleration(history[k - 1].y, history[k].y, history[k + 1].y) * weight;
    }
    return {orNone(std::clamp(give * sum.x, -widestSwing, widestSwing)),
            orNone(squash * std::tanh(give * sum.y / squash))};
}

double WumbleJelly::breathSettle(double t, double period) const {
    if (!(settle > 0) || !(period > 0)) {
        return 0;
    }
    double phase = std::fmod(t - period / 4, period);
    if (phase < 0) {
        phase += period;
    }
    return orNone(settle * Swing(*this).at(phase));
}

} // namespace wumble
