#include "Quietlark/Model/CuePlayer.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace quietlark {

namespace {

constexpr std::size_t wavHeaderSize = 44; ///< bytes

SoundOutput::Samples samplesOf(wumble::Cue cue) {
    const std::vector<std::uint8_t> file = wumble::CueSynthesis::wav(cue);
    auto samples = std::make_shared<std::vector<std::int16_t>>();
    for (std::size_t at = wavHeaderSize; at + 1 < file.size(); at += 2) {
        samples->push_back(static_cast<std::int16_t>(file[at] | file[at + 1] << 8));
    }
    return samples;
}

} // namespace

void CuePlayer::play(wumble::Cue cue, double volume) {
    if (!(volume > 0)) {
        return;
    }
    SoundOutput::Samples& samples = cache_[cue];
    if (!samples) {
        samples = samplesOf(cue);
    }
    output_.play(samples, volume);
}

} // namespace quietlark
