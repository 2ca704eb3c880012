#pragma once

#include "Quietlark/Platform/Linux/Proc/AppIdentity.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quietlark {

/// Somebody's wish that the display stays awake, as one service tells it.
struct DisplayHold {
    AppHints who;
    std::string reason;
};

/// One service that takes such wishes.
class HoldSource {
public:
    virtual ~HoldSource() = default;

    /// Whether it has answered, or it is known that it won't.
    virtual bool settled() const = 0;

    /// Oldest first, as far as the service tells.
    virtual std::vector<DisplayHold> holds() const = 0;

    /// For services that don't tell of every change. Sends at most a question.
    virtual void refresh(double /*uptime*/) {}

    /// Called after each change. One observer.
    void observe(std::function<void()> changed) { changed_ = std::move(changed); }

protected:
    void tell() const { changed_(); }

private:
    std::function<void()> changed_ = [] {};
};

/// How often a service that only tells that there is some hold is asked which ones.
inline constexpr double secondsBetweenHoldLists = 3;

} // namespace quietlark
