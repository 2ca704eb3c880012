#pragma once

#include "WumbleCore/Engine/SmartActivity.h"

#include <string>

namespace wumble {

/// How long breaks wait for an activity: "until your call ends".
std::string waitLine(const SmartActivity& activity);

} // namespace wumble
