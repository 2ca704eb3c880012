#pragma once

#include "Quietlark/Model/Accessibility.h"
#include "Quietlark/Platform/Announcer.h"
#include "Quietlark/Platform/DesktopLook.h"

namespace quietlark {

/// What this desktop offers of it. Both parts must outlive it.
class DesktopAccessibility : public Accessibility {
public:
    DesktopAccessibility(Announcer& announcer, const DesktopLookSource& look)
        : announcer_(announcer), look_(look) {}

    void announce(const std::string& sentence) override { announcer_.announce(sentence); }
    bool reducesMotion() const override { return look_.look().reduceMotion; }

private:
    Announcer& announcer_;
    const DesktopLookSource& look_;
};

} // namespace quietlark
