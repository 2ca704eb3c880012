#include "WumbleCore/Life/WumblePersonality.h"
#include "WumbleCore/Foundation/Text.h"

namespace wumble {

std::string name(WumblePersonality personality) { return capitalized(enumText(personality)); }

} // namespace wumble
