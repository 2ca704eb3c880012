#pragma once

#include "WumbleCore/Engine/SettingsChoices.h"
#include "WumbleCore/Motion/NotePose.h"
#include "WumbleCore/Words/Toast.h"

#include <QRectF>
#include <QSizeF>
#include <QTransform>

#include <optional>

/// Where a nudge's card stands on a screen and in its panel. Points, y growing downwards.
namespace quietlark::NudgeGeometry {

inline constexpr QSizeF cardSize{340, 146}; ///< at scale 1
inline constexpr double margin = 14;        ///< around the card, for its shadow and its motion

/// How a card with that exercise comes in.
wumble::NoteEntrance entrance(const std::optional<wumble::Toast::FollowAlong>& followAlong);

/// By the person's choice, but never so large that a small screen gives a third of its width away.
double scale(wumble::ReminderSize size, const QRectF& visibleFrame);

/// The card on the desktop, at rest.
QRectF card(double scale, wumble::NudgeSpot spot, const QRectF& visibleFrame);

/// The panel around a card: a margin on each side, and for a hanging one the string's way from the top of the screen
/// and the room below that it falls through.
struct Panel {
    QRectF frame;       ///< on the desktop
    QRectF card;        ///< in the panel, at rest
    double hanging = 0; ///< points of string between the panel's top and the card's margin
};
Panel panel(const QRectF& card, double scale, wumble::NoteEntrance entrance, const QRectF& screenFrame);

/// How a hanging card is moved in its panel, `elapsed` seconds after it came: about its middle, from its place at rest.
QTransform swing(const QRectF& card, double scale, double elapsed);

} // namespace quietlark::NudgeGeometry
