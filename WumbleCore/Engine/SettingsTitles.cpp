#include "WumbleCore/Engine/SettingsTitles.h"

namespace wumble {

std::string title(Enforcement enforcement) {
    switch (enforcement) {
    case Enforcement::casual: return "Anytime";
    case Enforcement::balanced: return "After " + std::to_string(skipUnlockDelay) + " sec";
    case Enforcement::hardcore: return "Never";
    }
    return {};
}

std::string title(EscapeAction action) {
    switch (action) {
    case EscapeAction::skip: return "Skip the break";
    case EscapeAction::snooze: return "Snooze 5 minutes";
    }
    return {};
}

std::string title(BreakScreenStyle style) {
    switch (style) {
    case BreakScreenStyle::blur: return "Blurred desktop";
    case BreakScreenStyle::gradient: return "Calm gradient";
    }
    return {};
}

std::string title(Appearance appearance) {
    switch (appearance) {
    case Appearance::system: return "System";
    case Appearance::light: return "Light";
    case Appearance::dark: return "Dark";
    }
    return {};
}

} // namespace wumble
