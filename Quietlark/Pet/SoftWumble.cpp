#include "Quietlark/Pet/SoftWumble.h"

#include "Quietlark/Pet/Art/FaceArt.h"
#include "Quietlark/Pet/Art/LightArt.h"
#include "Quietlark/Pet/Ease.h"
#include "Quietlark/Pet/Things.h"

namespace quietlark::SoftWumble {

namespace {

constexpr double rimWidth = 10;      ///< of the white stroke: half of it shows
constexpr double keylineWidth = 2.6; ///< beyond the rim
constexpr double thinnestLine = 0.8; ///< of the keyline, in pixels

QTransform boxIn(const QRectF& place) {
    const double scale = std::min(place.width(), place.height()) / box;
    QTransform transform;
    transform.translate(place.center().x(), place.center().y());
    transform.scale(scale, scale);
    transform.translate(-box / 2, -box / 2);
    return transform;
}

double pixelsPerUnit(const QPainter& painter) {
    return std::sqrt(std::abs(painter.deviceTransform().determinant()));
}

void drawGroundShadow(QPainter& painter, const Stage& stage) {
    const double lifted = clamped(-stage.motion.offset.y / 120);
    const double width = 146 * (1 - 0.12 * stage.pose.tall) * (1 - lifted) * stage.motion.across;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(0.788F, 0.725F, 0.635F, 0.2F));
    painter.drawEllipse(QPointF(134 + stage.motion.offset.x, 233), width / 2, 8 * (1 - lifted));
}

/// The body's outline comes first and is filled later; all other things lie on paper. One after another: strokes that
/// cross each other within one path take the rasterizer much longer.
void drawOutlines(QPainter& painter, const Stage& stage, std::span<const QPainterPath> outlines) {
    const double keyline = std::max(keylineWidth, thinnestLine / pixelsPerUnit(painter));
    const auto stroke = [&](const QColor& colour, double width) {
        for (const QPainterPath& outline : outlines) {
            painter.strokePath(outline, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        }
    };
    stroke(stage.tweaks.stickerInk.value_or(stage.colours.ink), rimWidth + 2 * keyline);
    const QColor paper = stage.tweaks.stickerWhite.value_or(Qt::white);
    stroke(paper, rimWidth);
    for (const QPainterPath& thing : outlines.subspan(1)) {
        painter.fillPath(thing, paper);
    }
}

/// The same body, a little up and to the left: what it leaves uncovered is in the shade.
QPainterPath shadeOf(const QPainterPath& body) {
    QPainterPath path = body.translated(-7, -10);
    path.addPath(body);
    path.setFillRule(Qt::OddEvenFill);
    return path;
}

/// Marks that run over the edge take the shade of the body with them.
constexpr QColor coatShade{110, 60, 30, 40};

void drawBody(QPainter& painter, const Stage& stage) {
    const PainterScope scope(painter);
    painter.setTransform(stage.body, true);
    painter.fillPath(stage.bent, stage.colours.body);
    painter.setClipPath(stage.bent, Qt::IntersectClip);
    const QPainterPath shade = shadeOf(stage.bent);
    painter.fillPath(shade, stage.colours.shade);
    if (drawTexture(painter, stage) == Texture::overTheEdge) {
        painter.fillPath(shade, coatShade);
    }
}

/// What the pet has on it at the moment.
struct Belongings {
    explicit Belongings(const Stage& stage)
        : accessory(worn(stage)), keepsake(held(stage)), talking(talkingWith(stage)),
          typing(typingOn(stage)) {}

    std::optional<Placed> accessory;
    std::optional<Placed> keepsake;
    std::optional<Placed> talking;
    std::optional<Placed> typing;
};

/// All that the rim goes around.
std::vector<QPainterPath> outlines(const Stage& stage, const Belongings& things) {
    std::vector<QPainterPath> paths{stage.outline};
    if (stage.tweaks.parts != Parts::all) {
        return paths;
    }
    for (const auto* thing : {&things.accessory, &things.keepsake, &things.talking, &things.typing}) {
        if (*thing) {
            paths.push_back(outline(**thing));
        }
    }
    for (const QTransform& seat : pawSeats(stage)) {
        paths.push_back(seat.map(bean.path()));
    }
    return paths;
}

/// What a thing leaves uncovered of a path.
QPainterPath besides(const std::optional<Placed>& thing, const QPainterPath& path) {
    const QPainterPath hidden = thing ? cover(*thing) : QPainterPath();
    return hidden.intersects(path.boundingRect()) ? path.subtracted(hidden) : path;
}

/// The light lies on the dough, not on what the pet wears there.
void drawHighlights(QPainter& painter, const Stage& stage, const Belongings& things) {
    struct Light {
        Art art;
        double opacity;
    };
    constexpr std::array lights{Light{broadLight, 0.22}, Light{smallLight, 0.5}, Light{speckOfLight, 0.5}};
    const PainterScope scope(painter);
    painter.setClipPath(stage.outline, Qt::IntersectClip);
    for (const auto& [art, opacity] : lights) {
        const QPainterPath light = stage.body.map(stage.soft.bendy(art.path()));
        painter.setOpacity(opacity);
        painter.fillPath(besides(things.accessory, light), stage.colours.light);
    }
}

void drawBelongings(QPainter& painter, const Stage& stage, const Belongings& things) {
    for (const auto* thing : {&things.talking, &things.accessory, &things.keepsake, &things.typing}) {
        if (*thing) {
            drawContact(painter, stage, **thing);
            drawLayers(painter, stage, **thing);
        }
    }
    drawPaws(painter, stage);
    drawHug(painter, stage);
}

bool drawsCheeks(const Tweaks& tweaks) {
    return tweaks.parts == Parts::all || tweaks.cheeksWithBody == (tweaks.parts == Parts::body);
}

} // namespace

void draw(QPainter& painter, const QRectF& place, const wumble::WumbleDay& day, const WumblePose& pose,
          Sticker sticker, const Tweaks& tweaks) {
    if (!place.isValid()) {
        return;
    }
    const PainterScope scope(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(boxIn(place), true);
    const Stage stage(day, pose, tweaks);
    const Belongings things(stage);
    if (tweaks.parts != Parts::face) {
        if (tweaks.groundShadow) {
            drawGroundShadow(painter, stage);
        }
        if (sticker == Sticker::dieCut) {
            drawOutlines(painter, stage, outlines(stage, things));
        }
        drawBody(painter, stage);
    }
    if (tweaks.parts != Parts::body) {
        drawFace(painter, stage);
    }
    if (drawsCheeks(tweaks)) {
        drawCheeks(painter, stage);
    }
    if (tweaks.parts == Parts::all) {
        drawBelongings(painter, stage, things);
    }
    if (tweaks.parts != Parts::face) {
        drawHighlights(painter, stage, things);
    }
    if (tweaks.parts == Parts::all) {
        drawEffects(painter, stage);
    }
}

} // namespace quietlark::SoftWumble
