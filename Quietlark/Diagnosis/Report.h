#pragma once

#include "Quietlark/Activity/DetectorStatus.h"
#include "WumbleCore/Engine/SmartActivity.h"

#include <optional>
#include <string>
#include <vector>

/// The words of the diagnostic commands.
namespace quietlark::Report {

/// What they tell of: the last poll and what it was given.
struct Findings {
    std::string dataFolder;
    std::optional<double> idleSeconds;          ///< absent reads as just now
    std::optional<double> secondsSinceKeyPress; ///< absent reads as long ago
    DetectorStatus status;
    std::optional<std::vector<std::string>> capturers; ///< of the capture log; absent while it has no word
    std::optional<wumble::SmartActivity> activity;
};

/// The whole report, each line ended.
std::string diagnosis(const Findings& findings);

/// One line of the microphone's watch, with the time of day as given.
std::string microphoneLine(const Findings& findings, const std::string& time);

/// One line of the screen capture's watch.
std::string captureLine(const Findings& findings);

} // namespace quietlark::Report
