#pragma once

#include "WumbleCore/Foundation/Geometry.h"

#include <variant>
#include <vector>

namespace wumble {

/// Each goes on from the point where the one before it ended; all points are absolute.
namespace segment {

struct Move {
    Point to;
    bool operator==(const Move&) const = default;
};

struct Line {
    Point to;
    bool operator==(const Line&) const = default;
};

struct Cubic {
    Point control1;
    Point control2;
    Point to;
    bool operator==(const Cubic&) const = default;
};

struct Quadratic {
    Point control;
    Point to;
    bool operator==(const Quadratic&) const = default;
};

/// Back to the last move.
struct Close {
    bool operator==(const Close&) const = default;
};

} // namespace segment

using Segment =
    std::variant<segment::Move, segment::Line, segment::Cubic, segment::Quadratic, segment::Close>;

/// What a painter fills or strokes. A path that doesn't begin with a move begins at (0, 0).
using Path = std::vector<Segment>;

} // namespace wumble
