#pragma once

#include "Quietlark/Pet/GestureMotion.h"
#include "Quietlark/Pet/Soft.h"
#include "Quietlark/Pet/SoftWumble.h"

#include "WumbleCore/Motion/WumbleJelly.h"

#include <QTransform>
#include <cmath>
#include <numbers>

namespace quietlark::SoftWumble {

/// How far a full pull draws the dough out to the side.
inline constexpr double pulledArm = 36;

/// Everything about one moment that the parts of the drawing share, worked out before anything is painted.
struct Stage {
    Stage(const wumble::WumbleDay& day, const WumblePose& pose, const Tweaks& tweaks);

    const wumble::WumbleDay& day;
    const WumblePose& pose;
    const Tweaks& tweaks;
    int revealed;
    Palette colours;
    QColor faceInk;
    Motion motion;
    Soft soft;
    double across; ///< scales of the body
    double up;
    QTransform body;      ///< from the straight body's place to the box
    QPainterPath bent;    ///< the body before it is put into its place
    QPainterPath outline; ///< and there

    bool shows(wumble::RevealStep step) const { return revealed >= static_cast<int>(step); }

    /// Where a thing with its own origin stands that sits at a point of the body: moved with the dough, and
    /// neither squashed nor stretched with it.
    QTransform seat(QPointF at, double tilt = 0, double size = 1) const;
};

/// Gives the painter back as it was.
struct PainterScope {
    explicit PainterScope(QPainter& painter) : painter_(painter) { painter_.save(); }
    ~PainterScope() { painter_.restore(); }
    PainterScope(const PainterScope&) = delete;
    PainterScope& operator=(const PainterScope&) = delete;

private:
    QPainter& painter_;
};

/// One layer, where its path already lies.
void drawLayer(QPainter& painter, const Stage& stage, const Layer& layer, const QPainterPath& path);

/// Where the face and what belongs to it lie: from their place in the box.
QTransform faceSeat(const Stage& stage);

/// Whether a flavour's marks lie on the dough or cover its edge too, and with it the shade there.
enum class Texture { within, overTheEdge };
Texture drawTexture(QPainter& painter, const Stage& stage);
void drawFace(QPainter& painter, const Stage& stage);
void drawCheeks(QPainter& painter, const Stage& stage);

} // namespace quietlark::SoftWumble
