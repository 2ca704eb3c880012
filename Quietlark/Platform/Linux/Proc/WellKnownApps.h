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

/// A game that nothing else tells of: it has no entry and lies in no store's folder.
bool isGame(std::string_view localID);

/// Whether this program lets Windows games run, and them alone, by the place where a launcher put it.
bool isLayerOfGames(std::string_view executable);

} // namespace quietlark::WellKnownApps
