#pragma once

#include "Quietlark/Platform/SurfaceHost.h"

#include <string>

/// The lines in which it is noted whether a break screen is to be seen.
namespace quietlark {

/// "break on 2 of 2 screens, pointer on Laptop"; a screen without a name is "?".
std::string showingHeadline(std::size_t shown, std::size_t screens, const std::string& pointerScreen);

/// Where a window is, and that it was brought back where it isn't to be seen.
std::string showingLine(const std::string& screen, const HostedSurface& surface);

} // namespace quietlark
