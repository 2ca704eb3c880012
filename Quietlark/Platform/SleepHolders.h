#pragma once

#include "Quietlark/Platform/AppRef.h"
#include "Quietlark/Platform/Source.h"

#include <string>
#include <vector>

namespace quietlark {

/// A program that keeps the display awake, and the reason it gave.
struct SleepHolder {
    AppRef app;
    std::string reason;

    bool operator==(const SleepHolder&) const = default;
};

class SleepHolders : public Source {
public:
    /// In the order in which they began, as far as that is known. One program may stand there more than once.
    virtual std::vector<SleepHolder> displaySleepHolders() const = 0;
};

} // namespace quietlark
