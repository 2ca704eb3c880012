#pragma once

#include "WumbleCore/Foundation/EnumTexts.h"
#include "WumbleCore/Foundation/Geometry.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Whether a program is a game and whether it fills a screen, from what the platform tells of it.
namespace wumble::GameDetection {

/// The store or the compatibility layer that a game was installed by.
enum class Source { steam, epic, gog, crossOver, whisky };

/// A screen in the coordinates of the window list: from the top left of the main one, y growing downwards.
struct Display {
    Rect frame;
    double topInset = 0; ///< points at its top that no window covers: a panel, a camera housing

    bool operator==(const Display&) const = default;
};

/// Windows may miss an edge by this many points and still fill a screen.
inline constexpr double fillSlack = 2;

/// Decides from a bundle identifier, the categories that the bundles state (blank ones don't count) and the
/// paths of the executable and its bundles. A stated category decides against a path, a path only where none
/// is stated.
bool isGame(std::optional<std::string_view> bundleID, std::span<const std::string> categories,
            std::span<const std::string> paths);

/// "public.app-category.games" and its kinds, such as "public.app-category.puzzle-games".
bool isGameCategory(std::optional<std::string_view> category);

/// Stores and launchers are never games.
bool isLauncher(std::optional<std::string_view> bundleID);

/// Where a path says that it was installed from; absent for any other path and for a store's own tools.
std::optional<Source> source(std::string_view path);

/// The name to show, "a game" where a name says nothing. Never empty.
std::string displayName(std::optional<std::string_view> name);

/// Whether a window covers all of some display below its top inset. In the coordinates of `Display`.
bool fillsDisplay(const Rect& window, std::span<const Display> displays);

/// The same for any of a program's windows.
bool fillsADisplay(std::span<const Rect> windows, std::span<const Display> displays);

} // namespace wumble::GameDetection

namespace wumble {

template <> struct EnumTexts<GameDetection::Source> {
    static constexpr std::array<std::pair<GameDetection::Source, std::string_view>, 5> table{{
        {GameDetection::Source::steam, "steam"},
        {GameDetection::Source::epic, "epic"},
        {GameDetection::Source::gog, "gog"},
        {GameDetection::Source::crossOver, "crossOver"},
        {GameDetection::Source::whisky, "whisky"},
    }};
};

} // namespace wumble
