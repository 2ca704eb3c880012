#include "Quietlark/Surfaces/Nudges/NudgeGeometry.h"

#include "WumbleCore/Engine/NudgePlacement.h"
#include "WumbleCore/Foundation/Match.h"
#include "WumbleCore/Motion/Choreography.h"

#include <algorithm>

namespace quietlark::NudgeGeometry {

namespace {

constexpr double widestShare = 0.34; ///< of a screen
constexpr double stringBelow = 52;   ///< points a hanging card may fall past its place, at scale 1

/// How far a taut string gives: it takes up most of what the fall has left.
constexpr double give = 0.4;

constexpr double factor(wumble::ReminderSize size) {
    switch (size) {
    case wumble::ReminderSize::small: return 0.85;
    case wumble::ReminderSize::medium: return 1;
    case wumble::ReminderSize::large: return 1.2;
    }
    return 1;
}

} // namespace

wumble::NoteEntrance entrance(const std::optional<wumble::Toast::FollowAlong>& followAlong) {
    if (!followAlong) {
        return wumble::NoteEntrance::slap;
    }
    return wumble::match(
        *followAlong, //
        [](const wumble::Toast::Blinks&) { return wumble::NoteEntrance::eye; },
        [](const wumble::Toast::Steps&) { return wumble::NoteEntrance::hang; },
        [](const wumble::Toast::Breaths&) { return wumble::NoteEntrance::settle; });
}

double scale(wumble::ReminderSize size, const QRectF& visibleFrame) {
    return std::min(factor(size), visibleFrame.width() * widestShare / cardSize.width());
}

QRectF card(double scale, wumble::NudgeSpot spot, const QRectF& visibleFrame) {
    const QSizeF size = cardSize * scale;
    // Placing counts from the bottom upwards: the frame is turned over, and what comes out is turned back.
    const wumble::Rect upwards{visibleFrame.x(), 0, visibleFrame.width(), visibleFrame.height()};
    const auto corner = wumble::NudgePlacement::origin({size.width(), size.height()}, spot, upwards);
    return {QPointF(corner.x, visibleFrame.bottom() - corner.y - size.height()), size};
}

Panel panel(const QRectF& card, double scale, wumble::NoteEntrance entrance, const QRectF& screenFrame) {
    const bool hangs = entrance == wumble::NoteEntrance::hang;
    const double hanging = hangs ? std::max(card.top() - screenFrame.top() - margin, 0.0) : 0;
    const double below = hangs ? stringBelow * scale : 0;
    const QRectF frame = card.adjusted(-margin, -margin - hanging, margin, margin + below);
    return {.frame = frame, .card = card.translated(-frame.topLeft()), .hanging = hanging};
}

QTransform swing(const QRectF& card, double scale, double elapsed) {
    const auto [drop, tilt] = wumble::Choreography::hang(elapsed);
    const double taut = wumble::Choreography::hangDrops.front();
    const double fallen = drop > taut ? taut + give * (drop - taut) : drop;
    QTransform transform;
    transform.translate(card.center().x(), card.center().y() + fallen * scale);
    transform.rotate(tilt);
    transform.translate(-card.center().x(), -card.center().y());
    return transform;
}

} // namespace quietlark::NudgeGeometry
