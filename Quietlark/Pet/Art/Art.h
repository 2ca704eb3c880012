#pragma once

#include "Quietlark/Theme/Art.h"

#include <QColor>
#include <cstdint>
#include <span>

namespace quietlark {

/// A colour of a shape: its own, or one of the pet that wears it.
struct Tint {
    enum class Slot { own, body, shade, light, ink };

    Slot slot = Slot::own;
    std::uint32_t rgb = 0;

    constexpr Tint(std::uint32_t value) : rgb(value) {}
    constexpr Tint(Slot pet) : slot(pet) {}
};

/// A thing is drawn as a pile of these, the lowest first.
struct Layer {
    Art art; ///< in the 270 box, or around its own origin for things that are put somewhere
    Tint tint;
    double line = 0;         ///< width of the stroke; 0 fills
    bool silhouette = false; ///< belongs to the outline that the die-cut rim follows
    double opacity = 1;
    bool wrapped = false; ///< goes around the body: seen only where the body is
};

/// Nothing but paper: what lies within it isn't cut out of the sticker.
constexpr Layer backing(Art art) { return {art, 0xFFFFFF, 0, true, 0}; }

using Layers = std::span<const Layer>;

} // namespace quietlark
