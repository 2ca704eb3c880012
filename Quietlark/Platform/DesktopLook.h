#pragma once

#include <functional>

namespace quietlark {

/// How the desktop wants things to look and move, from its own settings.
struct DesktopLook {
    bool dark = false;
    bool moreContrast = false;
    bool reduceMotion = false;
    bool reduceTransparency = false;
    double textScale = 1; ///< 0.5 to 3

    bool operator==(const DesktopLook&) const = default;
};

/// Follows those settings. What no service tells stays at the default.
class DesktopLookSource {
public:
    virtual ~DesktopLookSource() = default;

    virtual const DesktopLook& look() const = 0;

    /// Called on the main thread after each change. One observer; an empty function ends it.
    virtual void observe(std::function<void()> changed) = 0;
};

} // namespace quietlark
