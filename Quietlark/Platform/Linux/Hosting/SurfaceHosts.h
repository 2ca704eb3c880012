#pragma once

#include "Quietlark/Platform/SurfaceHost.h"

#include <memory>

namespace quietlark {

/// The host of the window system that Qt runs on; one with no screens where that shows nothing to anybody. Needs a
/// QApplication, which outlives it.
std::unique_ptr<SurfaceHost> makeSurfaceHost();

} // namespace quietlark
