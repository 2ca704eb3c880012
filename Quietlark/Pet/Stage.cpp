#include "Quietlark/Pet/Stage.h"

#include "Quietlark/Pet/Art/BodyArt.h"

namespace quietlark::SoftWumble {

namespace {

constexpr double clumpHeight = 0.82; ///< of a pet without paws: it isn't quite itself yet
constexpr double degrees = std::numbers::pi / 180;

double upwards(const WumblePose& pose, double height) {
    const double pulled = pose.pull > 0 ? 1 - 0.06 * pose.pull : 1 - 0.12 * pose.pull;
    return height * (1 + 0.38 * pose.tall) * pulled;
}

/// Breath and puff go into the height; `top` says by how much.
double breathed(const WumblePose& pose) { return (1 + 0.225 * pose.puff) * (1 - 0.035 * pose.breathe); }

double sideways(const WumblePose& pose) {
    return (1 - 0.1 * pose.tall) * (1 + 0.3 * std::min(pose.pull, 0.0)) * (1 + 0.06 * pose.puff) *
           (1 + 0.012 * pose.breathe);
}

double leaning(const WumblePose& pose, const Motion& motion) {
    return motion.angle + 3 * pose.pull + 2.5 * pose.lean;
}

int revealedSteps(const wumble::WumbleDay& day) { return static_cast<int>(day.revealed()); }

} // namespace

double bodyHeight(const wumble::WumbleDay& day, const Tweaks& tweaks) {
    return tweaks.bodyHeight.value_or(day.shows(wumble::RevealStep::arms) ? 1 : clumpHeight);
}

wumble::Point top(const WumblePose& pose, const wumble::WumbleDay& day, const Tweaks& tweaks) {
    const Motion now = motion(pose.gesture, pose.progress, day.traits, revealedSteps(day));
    const double angle = leaning(pose, now) * degrees;
    const double length =
        wumble::WumbleJelly::height * breathed(pose) * now.up * upwards(pose, bodyHeight(day, tweaks));
    return {now.offset.x + 3 * pose.lean + length * std::sin(angle), now.offset.y - length * std::cos(angle)};
}

Stage::Stage(const wumble::WumbleDay& petDay, const WumblePose& petPose, const Tweaks& petTweaks)
    : day(petDay), pose(petPose), tweaks(petTweaks), revealed(revealedSteps(petDay)),
      colours(palette(petDay.base)), faceInk(petTweaks.faceInk.value_or(colours.ink)),
      motion(SoftWumble::motion(petPose.gesture, petPose.progress, petDay.traits, revealed)),
      soft{.reach = motion.reach + std::max(petPose.pull, 0.0) * pulledArm,
           .sway = petPose.sway,
           .sag = petPose.sag},
      across(motion.across * sideways(petPose)),
      up(motion.up * breathed(petPose) * upwards(petPose, bodyHeight(petDay, petTweaks))) {
    body.translate(Soft::axis + motion.offset.x + 3 * pose.lean, Soft::floor + motion.offset.y);
    body.rotate(leaning(pose, motion));
    body.scale(across, up);
    body.translate(-Soft::axis, -Soft::floor);
    bent = soft.bendy(shape(day.base));
    outline = body.map(bent);
}

QTransform Stage::seat(QPointF at, double tilt, double size) const {
    const QPointF moved = at + soft.shift(at);
    QTransform place = body;
    place.translate(moved.x(), moved.y());
    place.scale(1 / across, 1 / up);
    place.rotate(tilt);
    place.scale(size, size);
    return place;
}

void drawLayer(QPainter& painter, const Stage& stage, const Layer& layer, const QPainterPath& path) {
    const QColor colour = stage.colours.of(layer.tint);
    painter.setOpacity(layer.opacity);
    if (layer.line > 0) {
        painter.strokePath(path, QPen(colour, layer.line, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    } else {
        painter.fillPath(path, colour);
    }
}

} // namespace quietlark::SoftWumble
