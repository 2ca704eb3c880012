#include "WumbleCore/Motion/CueSynthesis.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

namespace wumble::CueSynthesis {

namespace {

constexpr double headroom = 0.7;

constexpr std::uint16_t linearPCM = 1;
constexpr std::uint16_t channels = 1;
constexpr std::uint16_t bytesPerSample = 2;
constexpr std::uint32_t formatSize = 16;
constexpr std::uint32_t sizeOfHeaderAfterRiffSize = 36;

using Bytes = std::vector<std::uint8_t>;

void append(Bytes& bytes, std::string_view text) { bytes.insert(bytes.end(), text.begin(), text.end()); }

template <std::unsigned_integral Number> void appendLittleEndian(Bytes& bytes, Number number) {
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
        bytes.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
    }
}

void appendHeader(Bytes& bytes, std::uint32_t dataSize) {
    append(bytes, "RIFF");
    appendLittleEndian(bytes, sizeOfHeaderAfterRiffSize + dataSize);
    append(bytes, "WAVEfmt ");
    appendLittleEndian(bytes, formatSize);
    appendLittleEndian(bytes, linearPCM);
    appendLittleEndian(bytes, channels);
    appendLittleEndian(bytes, std::uint32_t{sampleRate});
    appendLittleEndian(bytes, std::uint32_t{sampleRate} * channels * bytesPerSample);
    appendLittleEndian(bytes, static_cast<std::uint16_t>(channels * bytesPerSample));
    appendLittleEndian(bytes, static_cast<std::uint16_t>(8 * bytesPerSample));
    append(bytes, "data");
    appendLittleEndian(bytes, dataSize);
}

std::int16_t wholeSample(double sample) {
    if (std::isnan(sample)) {
        return 0;
    }
    constexpr double loudest = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(std::lround(std::clamp(headroom * sample, -1.0, 1.0) * loudest));
}

} // namespace

std::vector<std::uint8_t> encode(std::span<const double> samples) {
    Bytes bytes;
    appendHeader(bytes, static_cast<std::uint32_t>(samples.size() * bytesPerSample));
    for (const double sample : samples) {
        appendLittleEndian(bytes, static_cast<std::uint16_t>(wholeSample(sample)));
    }
    return bytes;
}

} // namespace wumble::CueSynthesis
