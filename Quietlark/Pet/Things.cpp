#include "Quietlark/Pet/Things.h"

#include "Quietlark/Pet/Art/BodyArt.h"
#include "Quietlark/Pet/Art/FaceArt.h"
#include "Quietlark/Pet/Art/PropArt.h"
#include "Quietlark/Pet/Ease.h"

namespace quietlark::SoftWumble {

namespace {

constexpr std::array headsetLayers{backing(headsetBacking), Layer{headsetBand, 0x4B5268, 0, true},
                                   Layer{headsetCup, 0x7FD8EA, 0, true}, Layer{headsetArm, 0x4B5268, 4.5},
                                   Layer{headsetMic, 0x4B5268, 10}};
constexpr std::array keyboardLayers{Layer{keyboard, 0xE9E7F2, 0, true}, Layer{keyboardFront, 0xC3BFD6},
                                    Layer{keyboardKeys, 0xA39DBE, 5}};

constexpr QColor contactShade{90, 45, 25, 54};
constexpr QPointF pawRest{38, 206}; ///< from the axis of the face, at rest on the belly
constexpr double pawAxis = 134;
constexpr double pawSize = 0.98;

QPointF restOf(double side, const Stage& stage) {
    const auto held = grip(stage);
    const auto& place = side < 0 ? held ? held->left : std::nullopt : held ? held->right : std::nullopt;
    if (stage.pose.keyboard) {
        return {pawAxis + side * 34, 207};
    }
    return place.value_or(QPointF(pawAxis + side * pawRest.x(), pawRest.y()));
}

/// While it types, one paw after the other goes down.
double typed(double side, const Stage& stage) {
    return stage.pose.keyboard
               ? 5 * std::max(0.0, side * std::sin(stage.pose.progress * 4 * std::numbers::pi))
               : 0;
}

/// A paw that holds something at its side can't hug.
bool hugsWith(double side, const Stage& stage) {
    const auto held = grip(stage);
    return stage.pose.hug && (side < 0 || !held || held->left);
}

QTransform pawSeat(double side, const PawPose& paw, const Stage& stage) {
    const QPointF rest = restOf(side, stage);
    const QPointF at = rest + QPointF(side * paw.offset.x, paw.offset.y - typed(side, stage));
    QTransform seat = stage.seat(at, side * paw.angle, pawSize);
    return seat.scale(-side, 1);
}

} // namespace

std::optional<Placed> talkingWith(const Stage& stage) {
    if (!stage.pose.headset) {
        return std::nullopt;
    }
    return Placed{headsetLayers, stage.seat({pawAxis, crest(stage.day.base, pawAxis)})};
}

std::optional<Placed> typingOn(const Stage& stage) {
    return stage.pose.keyboard ? std::optional(Placed{keyboardLayers, {}}) : std::nullopt;
}

std::vector<QTransform> pawSeats(const Stage& stage) {
    if (!stage.shows(wumble::RevealStep::arms)) {
        return {};
    }
    const Paws moved = paws(stage.pose.gesture, stage.pose.progress);
    std::vector<QTransform> seats;
    if (!hugsWith(-1, stage)) {
        seats.push_back(pawSeat(-1, moved.left, stage));
    }
    if (!hugsWith(1, stage)) {
        seats.push_back(pawSeat(1, moved.right, stage));
    }
    return seats;
}

void drawLayers(QPainter& painter, const Stage& stage, const Placed& thing) {
    const PainterScope scope(painter);
    painter.setTransform(thing.seat, true);
    for (const Layer& layer : thing.layers) {
        const PainterScope wrapping(painter);
        if (layer.wrapped) {
            painter.setClipPath(thing.seat.inverted().map(stage.outline), Qt::IntersectClip);
        }
        drawLayer(painter, stage, layer, thing.bend.bendy(layer.art.path()));
    }
}

namespace {

QPainterPath silhouette(const Placed& thing, bool withBacking) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const Layer& layer : thing.layers) {
        if (layer.silhouette && (withBacking || layer.opacity > 0)) {
            path.addPath(thing.seat.map(thing.bend.bendy(layer.art.path())));
        }
    }
    return path;
}

} // namespace

QPainterPath outline(const Placed& thing) { return silhouette(thing, true); }
QPainterPath cover(const Placed& thing) { return silhouette(thing, false); }

void drawContact(QPainter& painter, const Stage& stage, const Placed& thing) {
    constexpr QPointF fall{1.5, 5};
    const PainterScope scope(painter);
    painter.setClipPath(stage.outline, Qt::IntersectClip);
    painter.fillPath(cover(thing).translated(fall), contactShade);
}

void drawPaws(QPainter& painter, const Stage& stage) {
    for (const QTransform& seat : pawSeats(stage)) {
        const PainterScope scope(painter);
        painter.setTransform(seat, true);
        painter.fillPath(bean.path(), stage.colours.paw());
        painter.fillPath(beanShade.path(), stage.colours.shade);
        const QPen line(stage.colours.edge(), 2.6, Qt::SolidLine, Qt::RoundCap);
        painter.strokePath(bean.path(), line);
        painter.strokePath(beanToes.path(), line);
    }
}

/// Two arms around the belly and what is held there.
void drawHug(QPainter& painter, const Stage& stage) {
    if (!stage.shows(wumble::RevealStep::arms)) {
        return;
    }
    constexpr double shoulder = 181;
    constexpr double inwards = 4; ///< degrees
    constexpr double armSize = 0.85;
    for (const auto& [x, side] : {std::pair(70.0, 1.0), std::pair(198.0, -1.0)}) {
        if (!hugsWith(-side, stage)) {
            continue;
        }
        const PainterScope scope(painter);
        painter.setTransform(stage.seat({x, shoulder}, side * inwards, armSize).scale(side, 1), true);
        painter.fillPath(hugArm.path(), stage.colours.body);
        const QPen line(stage.colours.edge(), 3, Qt::SolidLine, Qt::RoundCap);
        painter.strokePath(hugArm.path(), line);
        painter.strokePath(hugToes.path(), line);
    }
}

void drawPointer(QPainter& painter, const Stage& stage) {
    constexpr QPointF besideBody{228, 182};
    const PainterScope scope(painter);
    painter.translate(besideBody + stage.soft.shift(besideBody));
    painter.rotate(-8);
    painter.scale(1.25, 1.25);
    painter.strokePath(arrow.path(), QPen(stage.colours.ink, 9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.strokePath(arrow.path(), QPen(Qt::white, 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(arrow.path(), stage.colours.ink);
}

} // namespace quietlark::SoftWumble
