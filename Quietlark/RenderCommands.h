#pragma once

#include "Quietlark/CommandLine.h"

namespace quietlark {

/// Each runs in place of the application and gives the exit status: 0, or 1 after a line to standard error. Needs a
/// QApplication.
int runRender(const command::Render& command);
int runRender(const command::KeepIcon& command);

} // namespace quietlark
