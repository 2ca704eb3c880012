#pragma once

#include <QImage>
#include <QPainter>
#include <map>
#include <variant>
#include <vector>

/// The small pet in the panel: one shape in the panel's ink. It tells at a glance how near the break is.
namespace quietlark::MenuBarIcon {

namespace mood {

/// Six steps: 0, wide awake, to 5, hardly; others are taken to the nearest.
struct Awake {
    int sleepiness = 0;
    auto operator<=>(const Awake&) const = default;
};
struct Due {
    auto operator<=>(const Due&) const = default;
};
struct OnBreak {
    auto operator<=>(const OnBreak&) const = default;
};
struct Paused {
    auto operator<=>(const Paused&) const = default;
};

} // namespace mood

using Mood = std::variant<mood::Awake, mood::Due, mood::OnBreak, mood::Paused>;

/// The six steps, and what else can be.
std::vector<Mood> allMoods();

struct Key {
    Mood mood;
    bool dark = false; ///< the panel is dark: the icon is light

    auto
    operator<=>(const Key&) const = default; // NOLINT(readability-implicit-bool-conversion): compares bools
};

/// Draws it into the largest square in the middle of `place`.
void draw(QPainter& painter, const QRectF& place, const Key& key);

/// The same at a size in pixels, kept once it is drawn.
QImage image(const Key& key, int pixels);

} // namespace quietlark::MenuBarIcon
