#pragma once

#include <string>

namespace quietlark {

/// Speaks to those who listen to the screen rather than look at it.
class Announcer {
public:
    virtual ~Announcer() = default;

    /// Passes a sentence on without waiting. Nothing happens where nobody listens.
    virtual void announce(const std::string& sentence) = 0;
};

} // namespace quietlark
