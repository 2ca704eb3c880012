#pragma once

#include <string>

/// Lengths of time in words, the same on every surface. All take seconds; what is below 0 or no number reads as
/// 0, what is beyond any life as the longest one.
namespace wumble::Format {

/// "4:05", "1:04:05"; rounded up to whole seconds.
std::string clock(double seconds);

/// "1:00" below a minute as the clock has it, otherwise "12m", rounded up.
std::string menuBar(double seconds);

/// "45 sec", "5 min", "1 hr 10 min".
std::string duration(double seconds);

/// How long something has been waited for: "a moment" below a minute.
std::string waited(double seconds);

} // namespace wumble::Format
