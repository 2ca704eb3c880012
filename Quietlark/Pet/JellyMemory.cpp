#include "Quietlark/Pet/JellyMemory.h"

#include "Quietlark/Pet/Ease.h"

namespace quietlark {

void JellyMemory::note(const Look& look, double t) {
    constexpr std::size_t enough = 8;
    constexpr double kept = 2; ///< seconds
    if (!looks_.empty() && looks_.back().t > t) {
        looks_.clear();
    }
    const std::size_t half = (looks_.size() + 1) / 2;
    const bool halfIsOld = looks_.size() >= enough && looks_[half].t < t - kept;
    looks_.push_back({t, look});
    if (halfIsOld) {
        looks_.erase(looks_.begin(), looks_.begin() + static_cast<std::ptrdiff_t>(half));
    }
}

void JellyMemory::keep(const Doing& doing) {
    if (doing_ != doing) {
        doing_ = doing;
        tops.clear();
    }
}

Look JellyMemory::pointer(double t) const {
    if (looks_.empty()) {
        return {};
    }
    const auto later =
        std::find_if(looks_.begin(), looks_.end(), [&](const NotedLook& one) { return one.t >= t; });
    if (later == looks_.end()) {
        return looks_.back().look;
    }
    if (later == looks_.begin()) {
        return later->look;
    }
    const auto& [from, a] = *std::prev(later);
    const auto& [to, b] = *later;
    const double share = (t - from) / (to - from);
    return {mix(a.x, b.x, share), mix(a.y, b.y, share), mix(a.lean, b.lean, share)};
}

} // namespace quietlark
