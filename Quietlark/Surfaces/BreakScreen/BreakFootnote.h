#pragma once

#include "Quietlark/Model/AppModel.h"

#include <string>
#include <string_view>

namespace quietlark {

inline constexpr std::string_view endByKey = "Press Return or Esc to end the break";
inline constexpr std::string_view previewFootnote = "A preview, so nothing is counted · Esc to leave";

/// The line at the foot of a real break: what the keys do.
std::string breakFootnote(const AppModel& model, bool isFinished, wumble::Date now);

} // namespace quietlark
