#pragma once

#include "Quietlark/Platform/Source.h"

#include <optional>

namespace quietlark {

/// When the person last touched the machine. Seconds are never negative and count up to the last `refresh`.
/// Absent means that this desktop doesn't tell, which rules take for "long ago".
class InputClock : public Source {
public:
    virtual std::optional<double> secondsSinceAnyInput() const = 0;
    virtual std::optional<double> secondsSinceKeyDown() const = 0;
    virtual std::optional<double> secondsSinceLeftMouseDown() const = 0;
    virtual std::optional<double> secondsSinceRightMouseDown() const = 0;
    virtual bool leftButtonHeld() const = 0;
    virtual bool rightButtonHeld() const = 0;
};

} // namespace quietlark
