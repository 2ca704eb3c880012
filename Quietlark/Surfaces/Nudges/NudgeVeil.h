#pragma once

#include "Quietlark/Surfaces/Notes/FadingSurface.h"
#include "Quietlark/Surfaces/SurfaceContext.h"

#include <QColor>

#include <memory>

namespace quietlark {

/// What the screen behind a nudge is dimmed with.
QColor nudgeDim(const Appearance& appearance);

/// The dimming of a whole screen, which lets every click through. It fades in, unless it goes on from `old`, which then
/// is empty. Absent where the desktop can't blend: nobody is to sit before a black screen for the sake of a blink.
std::unique_ptr<FadingSurface> makeVeil(const SurfaceContext& context, const Screen& screen,
                                        std::unique_ptr<FadingSurface> old);

} // namespace quietlark
