#pragma once

#include <cstdint>
#include <optional>

namespace quietlark {

/// Milliseconds of the server, counted on beyond the 32 bits that it tells.
using X11Time = std::int64_t;

/// The server's time beside the main loop's. They drift apart while the machine sleeps, so the pair is taken anew
/// again and again.
class X11Clock {
public:
    /// The time that a 32-bit one stands for: the nearest to the last one heard.
    X11Time read(std::uint32_t told) {
        last_ = last_ ? *last_ + static_cast<std::int32_t>(told - static_cast<std::uint32_t>(*last_))
                      : static_cast<X11Time>(told);
        return *last_;
    }

    /// Both were so just now.
    void pair(X11Time server, double uptime) { offset_ = uptime - seconds(server); }
    bool isPaired() const { return offset_.has_value(); }

    /// In the main loop's time; absent before the first pair.
    std::optional<double> uptime(X11Time server) const {
        return offset_ ? std::optional(*offset_ + seconds(server)) : std::nullopt;
    }

    /// The last time heard, as the server tells it; 0 before.
    std::uint32_t lastTold() const { return static_cast<std::uint32_t>(last_.value_or(0)); }

private:
    static double seconds(X11Time server) { return static_cast<double>(server) / 1000; }

    std::optional<X11Time> last_;
    std::optional<double> offset_;
};

} // namespace quietlark
