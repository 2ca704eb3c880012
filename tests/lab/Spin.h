#pragma once

#include <functional>

namespace quietlark::lab {

/// Runs the event loop until the condition holds, at the longest `seconds`; whether it held. Needs a
/// QCoreApplication. The condition is looked at every few milliseconds and after every event.
bool spinUntil(const std::function<bool()>& condition, double seconds = 10);

} // namespace quietlark::lab
