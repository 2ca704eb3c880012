#pragma once

#include "Quietlark/Platform/Platform.h"

#include <optional>

namespace quietlark {

/// What a machine says on which pictures are taken: somebody sits at it, and nothing else happens unless it is set.
struct PreviewMachine {
    double idleSeconds = 0;
    std::optional<double> secondsSinceKeyDown;
    bool leftButtonHeld = false;
};

/// A platform that answers from `machine`, which outlives it. What it is told to do is nobody's business.
Platform makePreviewPlatform(const PreviewMachine& machine);

} // namespace quietlark
