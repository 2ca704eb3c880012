#pragma once

#include "Quietlark/Pet/Stage.h"

namespace quietlark::SoftWumble {

/// A thing that is put somewhere: its layers, and where they go.
struct Placed {
    Layers layers;
    QTransform seat;
    Soft bend = {}; ///< of what is soft itself and goes with the dough
};

/// What the pet wears; absent before it has something, and while a headset takes its place.
std::optional<Placed> worn(const Stage& stage);

/// What the pet holds; absent before it has something, and while it types.
std::optional<Placed> held(const Stage& stage);

/// Where the paws are on what the pet holds, in the straight body; a paw that isn't needed rests.
struct Grip {
    std::optional<QPointF> left;
    std::optional<QPointF> right;
};
std::optional<Grip> grip(const Stage& stage);

/// The headset for talking, and the keyboard to type along.
std::optional<Placed> talkingWith(const Stage& stage);
std::optional<Placed> typingOn(const Stage& stage);

/// The paws that are free of a hug, from behind to front; none before the pet has some.
std::vector<QTransform> pawSeats(const Stage& stage);

void drawLayers(QPainter& painter, const Stage& stage, const Placed& thing);

/// One soft shade on the body under a thing that lies on it.
void drawContact(QPainter& painter, const Stage& stage, const Placed& thing);

/// The outlines that the rim of the sticker goes around.
QPainterPath outline(const Placed& thing);

/// What a thing hides.
QPainterPath cover(const Placed& thing);

void drawPaws(QPainter& painter, const Stage& stage);
void drawHug(QPainter& painter, const Stage& stage);
void drawPointer(QPainter& painter, const Stage& stage);
void drawEffects(QPainter& painter, const Stage& stage);

} // namespace quietlark::SoftWumble
