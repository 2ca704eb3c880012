#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// The icon as files that are kept with the sources, since an installation copies files and draws nothing.
namespace quietlark::IconCopy {

inline constexpr const char* keptFolder = "Quietlark/Installed/icons";

/// The files in the folder that are missing or don't show what is drawn now.
std::vector<std::string> outOfStep(const std::filesystem::path& folder);

/// Draws those anew. False when one can't be written.
bool bringInStep(const std::filesystem::path& folder);

} // namespace quietlark::IconCopy
