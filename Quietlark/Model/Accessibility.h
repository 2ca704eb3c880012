#pragma once

#include <string>

namespace quietlark {

/// What the desktop does, and asks for, on behalf of people who can't see everything or don't want it to move.
class Accessibility {
public:
    virtual ~Accessibility() = default;

    /// Speaks a sentence; nothing happens where nobody listens.
    virtual void announce(const std::string& sentence) = 0;

    virtual bool reducesMotion() const = 0;
};

} // namespace quietlark
