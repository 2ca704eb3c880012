#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace quietlark {

/// Where sounds go.
class SoundOutput {
public:
    /// 16-bit samples of one channel, 44,100 a second.
    using Samples = std::shared_ptr<const std::vector<std::int16_t>>;

    virtual ~SoundOutput() = default;

    /// Begins to play beside whatever plays already, and returns at once. `volume`: 0 to 1. Where no sound server
    /// answers, nothing is heard, now or later.
    virtual void play(const Samples& samples, double volume) = 0;
};

} // namespace quietlark
