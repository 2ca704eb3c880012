#pragma once

#include "Quietlark/Platform/Source.h"

namespace quietlark {

class Camera : public Source {
public:
    /// Whether any camera runs. False where nobody tells.
    virtual bool inUse() const = 0;
};

} // namespace quietlark
