#include "WumbleCore/Activity/GameDetection.h"
#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <vector>

namespace wumble::GameDetection {

namespace {

constexpr std::array<std::string_view, 4> launchers{
    "com.apple.games",
    "com.valvesoftware.steam",
    "com.epicgames.epicgameslauncher",
    "com.gog.galaxy",
};

/// Processes of the compatibility layer itself: their names say nothing of the game.
constexpr std::array<std::string_view, 6> wineNames{
    "wine", "wine64", "wine-preloader", "wine64-preloader", "wineloader", "wineserver",
};

struct PathRule {
    std::string_view fragment;
    std::optional<Source> source; ///< absent: what lies there is a tool and no game
};

/// The first that a path contains counts: a store's tools lie among its games.
constexpr std::array<PathRule, 9> pathRules{{
    {"/epic games/launcher/", std::nullopt},
    {"/epic games/ue_", std::nullopt},
    {"/epic games/twinmotion", std::nullopt},
    {"/steamapps/common/", Source::steam},
    {"/epic games/", Source::epic},
    {"/gog galaxy/games/", Source::gog},
    {"/gog games/", Source::gog},
    {"/crossover.app/contents/sharedsupport/", Source::crossOver},
    {"/com.isaacmarovitz.whisky/libraries/", Source::whisky},
}};

constexpr std::string_view categoryPrefix = "public.app-category.";
constexpr std::string_view gamesEnding = "-games";
constexpr std::string_view namelessGame = "a game";
constexpr std::string_view windowsEnding = ".exe";

const PathRule* pathRule(std::string_view path) {
    const auto lower = lowerCased(path);
    const auto rule =
        std::ranges::find_if(pathRules, [&](const PathRule& each) { return contains(lower, each.fragment); });
    return rule == pathRules.end() ? nullptr : &*rule;
}

bool isTool(std::string_view path) {
    const auto* rule = pathRule(path);
    return rule != nullptr && !rule->source;
}

bool isCompatibilityLayer(Source source) { return source == Source::crossOver || source == Source::whisky; }

bool isBlank(std::string_view text) { return trimmed(text).empty(); }

Rect grown(const Rect& rect, double by) {
    return {rect.x - by, rect.y - by, rect.width + 2 * by, rect.height + 2 * by};
}

Rect usableArea(const Display& display) {
    const auto& frame = display.frame;
    const double inset = std::min(std::max(display.topInset, 0.0), frame.height);
    return {frame.x, frame.y + inset, frame.width, frame.height - inset};
}

} // namespace

std::optional<Source> source(std::string_view path) {
    const auto* rule = pathRule(path);
    return rule == nullptr ? std::nullopt : rule->source;
}

bool isGameCategory(std::optional<std::string_view> category) {
    const auto text = lowerCased(trimmed(category.value_or("")));
    if (!text.starts_with(categoryPrefix)) {
        return false;
    }
    const auto kind = std::string_view(text).substr(categoryPrefix.size());
    return kind == "games" || (kind.ends_with(gamesEnding) && kind.size() > gamesEnding.size());
}

bool isLauncher(std::optional<std::string_view> bundleID) {
    return bundleID && std::ranges::find(launchers, lowerCased(*bundleID)) != launchers.end();
}

bool isGame(std::optional<std::string_view> bundleID, std::span<const std::string> categories,
            std::span<const std::string> paths) {
    if (isLauncher(bundleID) || std::ranges::any_of(paths, isTool)) {
        return false;
    }
    std::vector<Source> sources;
    for (const auto& path : paths) {
        if (const auto found = source(path)) {
            sources.push_back(*found);
        }
    }
    // Its bundle says nothing of the program that runs inside.
    if (std::ranges::any_of(sources, isCompatibilityLayer)) {
        return true;
    }
    if (std::ranges::all_of(categories, isBlank)) {
        return !sources.empty();
    }
    return std::ranges::any_of(categories, isGameCategory);
}

std::string displayName(std::optional<std::string_view> name) {
    auto shown = trimmed(name.value_or(""));
    shown.remove_suffix(lowerCased(shown).ends_with(windowsEnding) ? windowsEnding.size() : 0);
    const bool saysNothing =
        shown.empty() || std::ranges::find(wineNames, lowerCased(shown)) != wineNames.end();
    return std::string(saysNothing ? namelessGame : shown);
}

bool fillsDisplay(const Rect& window, std::span<const Display> displays) {
    const auto covered = grown(window, fillSlack);
    return std::ranges::any_of(displays, [&](const Display& display) {
        const auto usable = usableArea(display);
        return !isEmpty(usable) && contains(covered, usable);
    });
}

bool fillsADisplay(std::span<const Rect> windows, std::span<const Display> displays) {
    return std::ranges::any_of(windows, [&](const Rect& window) { return fillsDisplay(window, displays); });
}

} // namespace wumble::GameDetection
