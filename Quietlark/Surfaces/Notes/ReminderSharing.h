#pragma once

#include "Quietlark/Model/AppModel.h"

namespace quietlark {

/// Whether messages and nudges may be on the screen now. A window can't be kept out of a recording here, so while one
/// runs that they shouldn't be in, they aren't there at all. Those who work on the machine from afar see them. The
/// heads-up and the countdown stay in any case: the break that they announce covers the screen anyway.
bool mayShowReminders(const AppModel& model);

} // namespace quietlark
