#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The application folders (".app") that an executable lies in, by its path alone.
namespace wumble::AppBundle {

/// As absolute paths, the outermost first; empty for an executable in none. A path that itself ends in ".app"
/// is one of them.
std::vector<std::string> appPaths(std::string_view executable);

std::optional<std::string> outermostBundlePath(std::string_view executable);

/// The outermost bundle's name without ".app" and " Helper", or else the executable's file name. Absent only
/// for a path without any parts.
std::optional<std::string> productName(std::string_view executable);

} // namespace wumble::AppBundle
