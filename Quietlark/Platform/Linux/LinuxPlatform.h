#pragma once

#include "Quietlark/Platform/Platform.h"

namespace quietlark {

/// The services of this session: what its buses, its window system and its sound server offer. Needs a
/// QCoreApplication; the loop must outlive it.
Platform makeLinuxPlatform(MainLoop& loop);

} // namespace quietlark
