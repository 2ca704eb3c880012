#pragma once

#include "WumbleCore/Foundation/Date.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// Notes on whether the break screen was really to be seen, for those who look into why it wasn't.
namespace quietlark::OverlayLog {

inline constexpr std::string_view fileName = "overlay.log";

/// Lines of earlier entries that are kept.
inline constexpr std::size_t keptLines = 200;

/// What the file holds after an entry is added to what it held. The entry's first line gets the time.
std::string added(std::string_view file, wumble::Date now, const std::vector<std::string>& entry);

/// Adds an entry to the log of that folder. A file that can't be read counts as empty; an entry that can't be written
/// is lost.
void add(const std::filesystem::path& folder, wumble::Date now, const std::vector<std::string>& entry);

} // namespace quietlark::OverlayLog
