#include "Quietlark/Pet/Art/KeepsakeArt.h"
#include "Quietlark/Pet/Art/PropArt.h"
#include "Quietlark/Pet/Ease.h"
#include "Quietlark/Pet/Things.h"

namespace quietlark::SoftWumble {

namespace {

/// One floating thing at one moment.
struct Floater {
    QPointF at;
    double size = 1;
    double tilt = 0; ///< degrees
    double opacity = 1;
};

/// Comes up softly and is gone before the phase goes round.
double presence(double phase) { return smooth(phase * 5) * (1 - smooth((phase - 0.7) / 0.3)); }

double part(double phase, double later) { return remainder(phase - later, 1); }

class EffectPainter {
public:
    EffectPainter(QPainter& painter, const Stage& stage)
        : painter_(painter), keyline_(stage.tweaks.stickerInk.value_or(stage.colours.ink)),
          rim_(stage.tweaks.stickerWhite.value_or(Qt::white)) {}

    /// A tiny sticker: keyline, rim and colour.
    void filled(Art art, const QColor& colour, const Floater& floater) const {
        const PainterScope scope(painter_);
        place(floater);
        painter_.strokePath(art.path(), pen(keyline_, 9));
        painter_.strokePath(art.path(), pen(rim_, 5.5));
        painter_.fillPath(art.path(), colour);
    }

    void lined(Art art, const QColor& colour, double width, const Floater& floater) const {
        const PainterScope scope(painter_);
        place(floater);
        painter_.strokePath(art.path(), pen(keyline_, width + 7));
        painter_.strokePath(art.path(), pen(rim_, width + 4));
        painter_.strokePath(art.path(), pen(colour, width));
    }

private:
    static QPen pen(const QColor& colour, double width) {
        return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
    }

    void place(const Floater& floater) const {
        painter_.translate(floater.at);
        painter_.rotate(floater.tilt);
        painter_.scale(floater.size, floater.size);
        painter_.setOpacity(floater.opacity);
    }

    QPainter& painter_;
    QColor keyline_;
    QColor rim_;
};

void drawZzz(const EffectPainter& effects, double phase) {
    for (const double later : {0.0, 0.33, 0.66}) {
        const double p = part(phase, later);
        effects.lined(sleepZ, QColor::fromRgb(0x8E9BD8), 4.6,
                      {{198 + 46 * p + 4 * wave(p, 0.8), 104 - 92 * p},
                       mix(0.6, 1.25, smooth(p)),
                       8 - 14 * p,
                       presence(p)});
    }
}

void drawSparkles(const EffectPainter& effects, double phase) {
    struct Place {
        QPointF at;
        double later;
        double size;
    };
    constexpr std::array places{Place{{36, 104}, 0.0, 1.1},   Place{{232, 86}, 0.2, 1.3},
                                Place{{66, 52}, 0.45, 0.9},   Place{{206, 44}, 0.6, 0.8},
                                Place{{250, 140}, 0.75, 0.9}, Place{{20, 160}, 0.85, 0.8}};
    for (const auto& [at, later, size] : places) {
        const double p = part(phase, later);
        const double shown = swell(p / 0.6);
        effects.filled(glint, QColor::fromRgb(0xFFCB45), {at, size * (0.4 + 0.6 * shown), 30 * p, shown});
    }
}

void drawFloatingHeart(const EffectPainter& effects, double phase) {
    const double p = clamped(phase);
    effects.filled(heart, QColor::fromRgb(0xE6516A),
                   {{206 + 7 * wave(p, 0.7), 92 - 56 * smooth(p)},
                    mix(0.35, 0.75, smooth(p * 2)),
                    8 * wave(p, 0.9),
                    presence(p)});
}

void drawNotes(const EffectPainter& effects, double phase) {
    const double single = part(phase, 0);
    const Floater first{{202 + 30 * single, 96 - 58 * single + 4 * wave(single, 0.5)},
                        1.05,
                        10 * wave(single, 0.7),
                        presence(single)};
    effects.filled(noteHead, QColor::fromRgb(0x6E62C4), first);
    effects.lined(noteFlag, QColor::fromRgb(0x6E62C4), 3, first);
    const double both = part(phase, 0.5);
    const Floater second{
        {60 - 32 * both, 92 - 50 * both + 4 * wave(both, 0.5)}, 0.95, -9 * wave(both, 0.7), presence(both)};
    effects.filled(notePair, QColor::fromRgb(0x6E62C4), second);
    effects.lined(noteStems, QColor::fromRgb(0x6E62C4), 3, second);
    effects.filled(noteBeam, QColor::fromRgb(0x6E62C4), second);
}

/// Two strokes of air beside a paw that waves.
void drawSwoosh(const EffectPainter& effects, const Stage& stage) {
    const double shown = swell(stage.pose.progress);
    effects.lined(swoosh, stage.colours.edge(), 3, {{247, 116}, 0.8, 6, shown});
}

} // namespace

void drawEffects(QPainter& painter, const Stage& stage) {
    const EffectPainter effects(painter, stage);
    const auto& pose = stage.pose;
    if (pose.pointer) {
        drawPointer(painter, stage);
    }
    if (pose.zzz) {
        drawZzz(effects, *pose.zzz);
    }
    if (pose.sparkles) {
        drawSparkles(effects, *pose.sparkles);
    }
    if (pose.heart) {
        drawFloatingHeart(effects, *pose.heart);
    }
    if (pose.hum) {
        drawNotes(effects, *pose.hum);
    }
    if (pose.gesture == wumble::WumbleGesture::wave && stage.shows(wumble::RevealStep::arms)) {
        drawSwoosh(effects, stage);
    }
}

} // namespace quietlark::SoftWumble
