#include "WumbleCore/Foundation/Match.h"
#include "WumbleCore/Motion/SVGPath.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace {

using wumble::Point;

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void requireFinite(std::initializer_list<Point> points) {
    for (const auto& [x, y] : points) {
        require(std::isfinite(x) && std::isfinite(y));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace wumble::segment;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto tokens = wumble::SVGPath::tokenize(text);
    require(tokens.size() <= size);
    const auto path = wumble::SVGPath::parse(text);
    require(path.size() <= tokens.size());
    for (const auto& segment : path) {
        wumble::match(
            segment, [](const Move& move) { requireFinite({move.to}); },
            [](const Line& line) { requireFinite({line.to}); },
            [](const Cubic& curve) {
                requireFinite({curve.control1, curve.control2, curve.to});
            },
            [](const Quadratic& curve) {
                requireFinite({curve.control, curve.to});
            },
            [](Close) {});
    }
    return 0;
}
