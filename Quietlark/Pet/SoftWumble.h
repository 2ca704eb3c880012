#pragma once

#include "Quietlark/Pet/Palette.h"
#include "Quietlark/Pet/WumblePose.h"
#include "WumbleCore/Life/WumbleDay.h"

#include <QPainter>

/// The pet, drawn: one soft sticker figure in a box of 270 by 270. Pure functions of what they are given.
namespace quietlark::SoftWumble {

inline constexpr double box = 270;

enum class Sticker { plain, dieCut };
enum class Parts { all, body, face };

struct Tweaks {
    std::optional<QColor> stickerWhite; ///< of the die-cut rim; white without one
    std::optional<QColor> stickerInk;   ///< of the keyline around it
    std::optional<QColor> faceInk;
    double faceScale = 1;
    bool groundShadow = false;
    Parts parts = Parts::all;
    std::optional<double> bodyHeight; ///< instead of the height that the pet has grown to
    double cheekInset = 26;           ///< how far the middle of a cheek stays from the body's edge
    bool cheeksWithBody = false;      ///< of the parts, the body has the cheeks and not the face

    bool operator==(const Tweaks&) const = default;
};

/// Draws the pet into the largest square in the middle of `place`. The painter is left as it was. An
/// empty place gets nothing.
void draw(QPainter& painter, const QRectF& place, const wumble::WumbleDay& day, const WumblePose& pose,
          Sticker sticker = Sticker::dieCut, const Tweaks& tweaks = {});

/// From the rest position of the body's foot to where its top is now, in the box.
wumble::Point top(const WumblePose& pose, const wumble::WumbleDay& day, const Tweaks& tweaks = {});

/// 1 for a pet with paws, lower for a clump.
double bodyHeight(const wumble::WumbleDay& day, const Tweaks& tweaks = {});

} // namespace quietlark::SoftWumble
