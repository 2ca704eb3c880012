#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Programs whose identifier here differs from the one by which lists of programs know them, on this desktop and on
/// others, so that a list made elsewhere holds here.
namespace quietlark::WellKnownApps {

/// The identifier that lists hold, for an identifier, window class or executable of this desktop, in any case.
std::optional<std::string> listedID(std::string_view localID);

/// Stores and launchers that call themselves games.
bool isGameLauncher(std::string_view localID);

} // namespace quietlark::WellKnownApps
