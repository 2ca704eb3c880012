#include "Quietlark/Pet/Art/BodyArt.h"
#include "Quietlark/Pet/Art/FaceArt.h"
#include "Quietlark/Pet/Ease.h"
#include "Quietlark/Pet/Stage.h"
#include "WumbleCore/Foundation/Match.h"

namespace quietlark::SoftWumble {

namespace {

using wumble::WumbleExpression;
using wumble::WumbleEyes;
using wumble::WumbleMouth;

constexpr double lineWidth = 3.3;
constexpr QPointF faceOrigin{133, 158};

/// A face, put together from what the mood asks for and what the pet was born with.
struct Features {
    Art eyes; ///< a pair, filled or stroked; without text the pet's own
    Art eye;  ///< one eye for both sides, instead of a pair
    bool strokedEyes = false;
    bool eyeShine = false;
    Art brows;
    Art mouth; ///< without text the pet's own
    bool openMouth = false;
    bool tongue = false;
    bool ownLeftEyeOnly = false;
    QPointF look;
};

struct OwnEyes {
    WumbleEyes value;
    Art pair;
    Art single;
    bool stroked;
    bool shine;
    Art lid; ///< stroked over the pair
};

constexpr std::array<OwnEyes, 7> ownEyes{{
    {WumbleEyes::dots, {}, dotEye, false, false, {}},
    {WumbleEyes::round, {}, roundEye, false, true, {}},
    {WumbleEyes::bean, {}, beanEye, false, false, {}},
    {WumbleEyes::almond, almondEyes, {}, false, false, {}},
    {WumbleEyes::sleepy, sleepyEyes, {}, true, false, sleepyLashes},
    {WumbleEyes::smiling, smilingEyes, {}, true, false, {}},
    {WumbleEyes::droopy, droopyBowl, {}, false, false, droopyLid},
}};
static_assert(wumble::isInOrder(ownEyes));

struct OwnMouth {
    WumbleMouth value;
    Art art;
    bool filled;
};

constexpr std::array<OwnMouth, 5> ownMouths{{
    {WumbleMouth::smile, smileMouth, false},
    {WumbleMouth::tinyO, tinyMouth, true},
    {WumbleMouth::cat, catMouth, false},
    {WumbleMouth::flat, flatMouth, false},
    {WumbleMouth::wavy, wavyMouth, false},
}};
static_assert(wumble::isInOrder(ownMouths));

Features of(WumbleExpression expression) {
    switch (expression) {
    case WumbleExpression::content: break;
    case WumbleExpression::happy:
        return {
            .eyes = smilingEyes, .strokedEyes = true, .mouth = happyMouth, .openMouth = true, .tongue = true};
    case WumbleExpression::sleepy:
        return {.eyes = sleepyEyes, .strokedEyes = true, .mouth = tinyMouth, .openMouth = true};
    case WumbleExpression::curious:
        return {.eye = roundEye, .eyeShine = true, .brows = curiousBrows, .look = {2, -1.5}};
    case WumbleExpression::bashful: return {.brows = worriedBrows, .mouth = bashfulMouth, .look = {-3, 2.5}};
    case WumbleExpression::surprised:
        return {.eye = surprisedEye,
                .eyeShine = true,
                .mouth = surprisedMouth,
                .openMouth = true,
                .look = {0, -1}};
    case WumbleExpression::focused: return {.brows = focusedBrows, .mouth = smallSmile};
    case WumbleExpression::wink: return {.mouth = catMouth, .ownLeftEyeOnly = true};
    }
    return {};
}

Features of(const Face& face) {
    return wumble::match(
        face, [](const face::Expression& shown) { return of(shown.expression); },
        [](face::Blink) { return Features{.eyes = blinkEyes, .strokedEyes = true}; },
        [](face::Resting) { return Features{.eyes = sleepyEyes, .strokedEyes = true, .mouth = smileMouth}; },
        [](face::Calm) { return Features{.eyes = blinkEyes, .strokedEyes = true, .mouth = smallSmile}; },
        [](face::Dizzy) { return Features{.eye = dizzyEye, .strokedEyes = true, .mouth = wavyMouth}; });
}

bool isSet(Art art) { return art.text[0] != '\0'; }

class FacePainter {
public:
    FacePainter(QPainter& painter, const Stage& stage)
        : painter_(painter), stage_(stage), features_(of(stage.pose.face)),
          pen_(stage.faceInk, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin) {}

    void drawEyes() const {
        const auto& own = wumble::rowOf(ownEyes, stage_.day.traits.eyes);
        if (features_.ownLeftEyeOnly) {
            const PainterScope scope(painter_);
            painter_.strokePath(winkEye.path(), pen_);
            painter_.setClipRect(QRectF(0, 0, mouthX, box), Qt::IntersectClip);
            drawOwn(own);
        } else if (isSet(features_.eye)) {
            drawTwo(features_.eye, features_.strokedEyes, features_.eyeShine);
        } else if (isSet(features_.eyes)) {
            drawPair(features_.eyes, features_.strokedEyes);
        } else {
            drawOwn(own);
        }
        if (isSet(features_.brows)) {
            painter_.strokePath(features_.brows.path(), thin());
        }
    }

    void drawMouth() const {
        if (stage_.pose.talk > 0) {
            return drawTalking();
        }
        const auto& own = wumble::rowOf(ownMouths, stage_.day.traits.mouth);
        const bool open = isSet(features_.mouth) ? features_.openMouth : own.filled;
        const QPainterPath& path = (isSet(features_.mouth) ? features_.mouth : own.art).path();
        open ? painter_.fillPath(path, stage_.faceInk) : painter_.strokePath(path, pen_);
        if (features_.tongue) {
            painter_.fillPath(happyTongue.path(), QColor::fromRgb(tongueColour));
        }
    }

private:
    static constexpr std::uint32_t tongueColour = 0xF58F93;

    QPointF gaze() const { return QPointF(stage_.pose.look * 5.5, stage_.pose.lookY * 4) + features_.look; }

    QPen thin() const {
        QPen pen = pen_;
        pen.setWidthF(2.6);
        return pen;
    }

    void drawOwn(const OwnEyes& own) const {
        if (isSet(own.single)) {
            drawTwo(own.single, own.stroked, own.shine);
        } else {
            drawPair(own.pair, own.stroked, own.lid);
        }
    }

    void drawTwo(Art eye, bool stroked, bool shine) const {
        for (const double x : {eyeLeft, eyeRight}) {
            const PainterScope scope(painter_);
            painter_.translate(QPointF(x, eyeLevel) + gaze());
            if (x == eyeRight) {
                painter_.scale(-1, 1);
            }
            drawEye(eye.path(), stroked);
            if (shine && lids() < 0.25) {
                painter_.translate(x == eyeRight ? 3.6 : 0, 0);
                painter_.fillPath(eyeShine.path(), Qt::white);
            }
        }
    }

    void drawPair(Art pair, bool stroked, Art lid = {}) const {
        const PainterScope scope(painter_);
        painter_.translate(gaze());
        if (stroked) {
            painter_.strokePath(pair.path(), pen_);
        } else if (lids() > 0) {
            painter_.translate(0, eyeLevel);
            drawLidded(pair.path().translated(0, -eyeLevel), {eyeLeft, eyeRight});
            painter_.translate(0, -eyeLevel);
        } else {
            painter_.fillPath(pair.path(), stage_.faceInk);
        }
        if (isSet(lid) && (stroked || lids() < 0.5)) {
            painter_.strokePath(lid.path(), thin());
        }
    }

    void drawEye(const QPainterPath& eye, bool stroked) const {
        if (stroked) {
            painter_.strokePath(eye, thin());
        } else if (lids() > 0) {
            drawLidded(eye, {0});
        } else {
            painter_.fillPath(eye, stage_.faceInk);
        }
    }

    double lids() const { return clamped(stage_.pose.lids); }

    /// What a lid leaves open of the eyes, and the lid's edge.
    void drawLidded(const QPainterPath& eyes, std::initializer_list<double> middles) const {
        constexpr double halfHeight = 7.6;
        const double edge = mix(-halfHeight + 3, 2, lids());
        const double bow = mix(-6.5, 4, lids() * lids());
        QPainterPath open;
        QPainterPath edges;
        for (const double x : middles) {
            const double droop = swell(lids()) * (x > mouthX ? 1 : -1);
            open.moveTo(x - 14, edge - 2 * droop);
            open.quadTo(x, edge + bow, x + 14, edge + 2 * droop);
            open.lineTo(x + 14, 20);
            open.lineTo(x - 14, 20);
            open.closeSubpath();
            edges.moveTo(x - 6.3, edge + bow * 0.15 - droop);
            edges.quadTo(x, edge + bow * 0.85, x + 6.3, edge + bow * 0.15 + droop);
        }
        painter_.fillPath(eyes.intersected(open), stage_.faceInk);
        QPen pen = pen_;
        pen.setColor(stage_.faceInk);
        pen.setWidthF(mix(1.6, lineWidth, lids()));
        painter_.setOpacity(smooth(lids() * 4));
        painter_.strokePath(edges, pen);
        painter_.setOpacity(1);
    }

    void drawTalking() const {
        const double open = 2.4 + 5.6 * clamped(stage_.pose.talk);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(stage_.faceInk);
        painter_.drawEllipse(QPointF(mouthX, mouthLevel), 4.6 + 0.12 * open, open);
    }

    QPainter& painter_;
    const Stage& stage_;
    Features features_;
    QPen pen_;
};

} // namespace

/// The face lies a little in front of the body: a turn moves it further than the dough.
QTransform faceSeat(const Stage& stage) {
    const QPointF moved = faceOrigin + stage.soft.shift(faceOrigin);
    const auto& turn = stage.pose.turn;
    QTransform place = stage.body;
    place.translate(moved.x() + 9 * turn.x, moved.y() + 6 * turn.y);
    place.scale(stage.tweaks.faceScale / std::sqrt(stage.across),
                stage.tweaks.faceScale / std::sqrt(stage.up));
    place.translate(-faceOrigin.x(), -faceOrigin.y());
    return place;
}

void drawFace(QPainter& painter, const Stage& stage) {
    const PainterScope scope(painter);
    painter.setTransform(faceSeat(stage), true);
    const FacePainter face(painter, stage);
    if (stage.shows(wumble::RevealStep::eyes) && stage.pose.showEyes) {
        face.drawEyes();
    }
    if (stage.shows(wumble::RevealStep::expression)) {
        face.drawMouth();
    }
}

/// However far the face turns, its cheeks stay on the body.
QPointF heldOnBody(QPointF cheek, const Stage& stage) {
    const auto body = extentAt(stage.outline, cheek.y());
    const double inset = stage.tweaks.cheekInset;
    if (!body || body->to - body->from < 2 * inset) {
        return cheek;
    }
    return {std::clamp(cheek.x(), body->from + inset, body->to - inset), cheek.y()};
}

void drawCheeks(QPainter& painter, const Stage& stage) {
    if (!stage.shows(wumble::RevealStep::cheeks)) {
        return;
    }
    constexpr double besideEyes = 16;
    constexpr double belowEyes = 15;
    const bool freckled = stage.day.traits.cheeks == wumble::WumbleCheeks::freckles;
    const QTransform face = faceSeat(stage);
    for (const double side : {-1.0, 1.0}) {
        const double eye = side < 0 ? eyeLeft : eyeRight;
        const QPointF wanted(eye + side * besideEyes, eyeLevel + belowEyes);
        const QPointF at = face.inverted().map(heldOnBody(face.map(wanted), stage));
        const PainterScope scope(painter);
        painter.setTransform(face, true);
        painter.translate(at);
        painter.scale(-side, 1);
        painter.fillPath((freckled ? freckleCheek : blushCheek).path(), stage.colours.cheek(freckled));
    }
}

} // namespace quietlark::SoftWumble
