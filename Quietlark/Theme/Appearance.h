#pragma once

namespace quietlark {

/// How things are to look and move. A value: who follows the desktop and the settings passes a new one.
struct Appearance {
    bool dark = false;
    bool moreContrast = false;
    bool reduceMotion = false;
    bool reduceTransparency = false;
    double textScale = 1;

    bool operator==(const Appearance&) const = default;
};

} // namespace quietlark
