#pragma once

#include "WumbleCore/Engine/SettingsChoices.h"

#include <string>

namespace wumble {

/// The names of choices as a person reads them.
std::string title(Enforcement enforcement);
std::string title(EscapeAction action);
std::string title(BreakScreenStyle style);
std::string title(Appearance appearance);

} // namespace wumble
