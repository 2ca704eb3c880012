#pragma once

#include "Quietlark/CommandLine.h"

namespace quietlark {

/// Each runs in place of the application, with the settings of the data folder, and gives the exit status. Needs a
/// QCoreApplication.
int runDiagnosis(const command::Diagnose& command);
int runDiagnosis(const command::WatchMicrophone& command);
int runDiagnosis(const command::WatchCapture& command);

} // namespace quietlark
