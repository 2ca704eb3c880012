#pragma once

#include "Quietlark/Theme/Sticker.h"

#include <QRectF>

/// Faces that several controls share.
namespace quietlark {

/// The face and the shadow that it rests on.
QRectF withShadow(const QRectF& face);

/// Nothing at rest; a tint under the pointer, a stronger one when pressed. `offset`: as `PressControl` has it.
void drawQuietFace(QPainter& painter, const QRectF& face, double radius, double offset,
                   const Appearance& appearance);

/// Flat on the paper, with a faint outline.
void drawDisabledFace(QPainter& painter, const QRectF& face, double radius, const Appearance& appearance);

} // namespace quietlark
