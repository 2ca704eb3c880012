#pragma once

#include "WumbleCore/Foundation/Geometry.h"
#include "WumbleCore/Life/RevealStep.h"
#include "WumbleCore/Life/WumbleGesture.h"
#include "WumbleCore/Life/WumbleTraits.h"

namespace quietlark::SoftWumble {

/// What a gesture does to the whole body.
struct Motion {
    wumble::Point offset; ///< in the box
    double angle = 0;     ///< degrees, to the right
    double across = 1;    ///< scales
    double up = 1;
    double reach = 0; ///< of the arm that comes out of the dough

    bool operator==(const Motion&) const = default;
};

/// Where a paw is, off its place of rest. The right one; the left is mirrored unless the gesture says
/// otherwise.
struct PawPose {
    wumble::Point offset;
    double angle = 0; ///< degrees, outwards
};

struct Paws {
    PawPose left;
    PawPose right;
};

/// `progress` runs from 0 to 1; at both ends the body is at rest. A gesture that needs paws does nothing
/// before the pet has some.
Motion motion(wumble::WumbleGesture gesture, double progress, const wumble::WumbleTraits& traits,
              int revealed);

Paws paws(wumble::WumbleGesture gesture, double progress);

} // namespace quietlark::SoftWumble
