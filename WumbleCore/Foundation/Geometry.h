#pragma once

#include <cstddef>
#include <optional>
#include <span>

namespace wumble {

/// Plain geometry in points. Which way y grows is said where a value is used.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;

    bool operator==(const Size&) const = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Rect&) const = default;

    constexpr double right() const { return x + width; }
    constexpr double farY() const { return y + height; }
};

constexpr bool isEmpty(const Rect& rect) { return !(rect.width > 0 && rect.height > 0); }

/// Whether no point of `inner` lies outside; shared edges are inside.
constexpr bool contains(const Rect& outer, const Rect& inner) {
    return inner.x >= outer.x && inner.right() <= outer.right() && inner.y >= outer.y &&
           inner.farY() <= outer.farY();
}

/// The area that both rectangles cover, 0 where they don't meet.
constexpr double commonArea(const Rect& a, const Rect& b) {
    const double left = a.x > b.x ? a.x : b.x;
    const double right = a.right() < b.right() ? a.right() : b.right();
    const double near = a.y > b.y ? a.y : b.y;
    const double far = a.farY() < b.farY() ? a.farY() : b.farY();
    return right > left && far > near ? (right - left) * (far - near) : 0;
}

/// The place in `places` of the rectangle that covers most of `rect`, the first of equals; absent where none meets it.
constexpr std::optional<std::size_t> placeOfMostInCommon(const Rect& rect, std::span<const Rect> places) {
    std::optional<std::size_t> best;
    double largest = 0;
    for (std::size_t place = 0; place < places.size(); ++place) {
        const double area = commonArea(rect, places[place]);
        if (area > largest) {
            largest = area;
            best = place;
        }
    }
    return best;
}

} // namespace wumble
