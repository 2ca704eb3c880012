#pragma once

#include "Quietlark/Platform/Source.h"

#include <optional>

namespace quietlark {

class ScreenWatch : public Source {
public:
    /// Whether anybody watches the screen now. Absent when this session can't tell.
    virtual std::optional<bool> isWatched() const = 0;
};

} // namespace quietlark
