#pragma once

namespace quietlark {

/// How the desktop wants things to look. A value: who follows the desktop passes a new one.
struct Appearance {
    bool dark = false;
    bool moreContrast = false;
    bool reduceMotion = false;

    bool operator==(const Appearance&) const = default;
};

} // namespace quietlark
