#pragma once

#include "Quietlark/Pet/Art/Art.h"
#include "WumbleCore/Life/WumbleBase.h"

namespace quietlark {

inline constexpr std::uint32_t defaultInk = 0x33282A;

/// The colours that a flavour's body is painted in.
struct Palette {
    QColor body;
    QColor shade;
    QColor light;
    QColor ink;

    bool operator==(const Palette&) const = default;

    QColor of(Tint tint) const;

    /// The line where two shapes of the body's colour meet.
    QColor edge() const;

    /// Of a paw, which is nearer to the light than the belly.
    QColor paw() const;

    /// Of a blush, or of freckles.
    QColor cheek(bool freckled) const;
};

Palette palette(wumble::WumbleBase base);

} // namespace quietlark
