#include "WumbleCore/Activity/GameDetection.h"

#include <gtest/gtest.h>

#include <vector>

namespace wumble::GameDetection {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* steamPath = "/home/x/SteamApps/Common/Foo/Foo.app/Contents/MacOS/Foo";
constexpr const char* launcherPath = "/Program Files/Epic Games/Launcher/Portal/Binaries/Launcher";
constexpr const char* crossOverPath = "/Applications/CrossOver.app/Contents/SharedSupport/CrossOver/bin/wine";
constexpr const char* actionGames = "public.app-category.action-games";
constexpr const char* utilities = "public.app-category.utilities";

TEST(GameDetection, readsTheSourceFromThePathInAnyCase) {
    struct Case {
        const char* path;
        std::optional<Source> source;
    };
    const Case cases[] = {
        {steamPath, Source::steam},
        {"/x/Epic Games/Fortnite/Game", Source::epic},
        {"/x/GOG Galaxy/Games/Foo", Source::gog},
        {"/x/GOG Games/Foo", Source::gog},
        {"/x/GOG Galaxy/Foo", std::nullopt},
        {crossOverPath, Source::crossOver},
        {"/Library/com.isaacmarovitz.Whisky/Libraries/Wine/bin/wine64", Source::whisky},
        {launcherPath, std::nullopt},
        {"/x/Epic Games/UE_5.3/Engine/Editor", std::nullopt},
        {"/x/Epic Games/TwinmotionViewer/x", std::nullopt},
        // A store's tools stay tools, even below another store.
        {"/x/steamapps/common/y/epic games/launcher/z", std::nullopt},
        {"/usr/bin/steamapps/common", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [path, expected] : cases) {
        EXPECT_EQ(source(path), expected) << path;
    }
}

TEST(GameDetection, knowsTheCategoriesOfGames) {
    for (const char* category :
         {"public.app-category.games", actionGames, " Public.App-Category.Puzzle-GAMES\n"}) {
        EXPECT_TRUE(isGameCategory(category)) << category;
    }
    for (const char* category :
         {"public.app-category.-games", "public.app-category.video", "games", "",
          "public.app-category.gamesx", "x-games", "public.app-category.board games"}) {
        EXPECT_FALSE(isGameCategory(category)) << category;
    }
    EXPECT_FALSE(isGameCategory(std::nullopt));
}

TEST(GameDetection, weighsLauncherToolsCompatibilityLayerAndCategoryInThisOrder) {
    struct Case {
        std::optional<std::string_view> bundleID;
        Texts categories;
        Texts paths;
        bool isGame;
    };
    const Case cases[] = {
        {std::nullopt, {}, {}, false},
        {"com.Valvesoftware.Steam", {actionGames}, {steamPath}, false},
        {"com.valvesoftware.steam.foo", {}, {steamPath}, true},
        {"a.game", {actionGames}, {launcherPath}, false},
        {"a.game", {actionGames}, {crossOverPath, launcherPath}, false},
        {"a.tool", {utilities}, {"/usr/bin/x", crossOverPath}, true},
        {"a.game", {}, {"/usr/bin/x", steamPath}, true},
        {"a.game", {" ", "\t"}, {steamPath}, true},
        {"a.tool", {utilities}, {steamPath}, false},
        {"a.game", {utilities, actionGames}, {"/usr/bin/x"}, true},
        {"a.tool", {" "}, {"/usr/bin/x"}, false},
    };
    for (const auto& [bundleID, categories, paths, expected] : cases) {
        EXPECT_EQ(isGame(bundleID, categories, paths), expected)
            << bundleID.value_or("-") << " " << testing::PrintToString(categories) << " "
            << testing::PrintToString(paths);
    }
}

TEST(GameDetection, showsANameThatSaysSomething) {
    struct Case {
        std::optional<std::string_view> name;
        const char* shown;
    };
    const Case cases[] = {
        {std::nullopt, "a game"},       {"  ", "a game"},     {"Game.EXE", "Game"},
        {" Half-Life ", "Half-Life"},   {".exe", "a game"},   {"wine64-preloader", "a game"},
        {"WineServer.exe", "a game"},   {"winery", "winery"}, {"exe", "exe"},
        {"Twice.exe.exe", "Twice.exe"},
    };
    for (const auto& [name, shown] : cases) {
        EXPECT_EQ(displayName(name), shown);
    }
}

TEST(GameDetection, aWindowFillsADisplayBelowItsInsetWithALittleSlack) {
    const std::vector<Display> displays{{{0, 0, 1920, 1080}, 30}, {{1920, 0, 1280, 1024}, 0}};
    struct Case {
        Rect window;
        bool fills;
    };
    const Case cases[] = {
        {{0, 30, 1920, 1050}, true},      {{0, 32, 1920, 1050}, true},      {{0, 33, 1920, 1050}, false},
        {{2.5, 30, 1917.5, 1050}, false}, {{0, 30, 1917.5, 1050}, false},   {{0, 30, 1920, 1047.5}, false},
        {{1920, 0, 1280, 1024}, true},    {{-100, -100, 4000, 2000}, true}, {{0, 0, 0, 0}, false},
    };
    for (const auto& [window, fills] : cases) {
        EXPECT_EQ(fillsDisplay(window, displays), fills) << window.x << " " << window.y;
    }
    EXPECT_TRUE(fillsADisplay(std::vector<Rect>{{0, 0, 9, 9}, {0, 30, 1920, 1050}}, displays));
    EXPECT_FALSE(fillsADisplay({}, displays));
}

TEST(GameDetection, onlyADisplayWithRoomBelowItsInsetCanBeFilled) {
    const auto fills = [](const Rect& window, const Display& display) {
        return fillsDisplay(window, std::vector<Display>{display});
    };
    const Rect everywhere{-1e6, -1e6, 2e6, 2e6};
    EXPECT_TRUE(fills(everywhere, {{0, 0, 100, 100}, 99}));
    EXPECT_FALSE(fills(everywhere, {{0, 0, 100, 100}, 1e9}));
    EXPECT_FALSE(fills(everywhere, {{0, 0, 100, -5}, 3}));
    EXPECT_FALSE(fills({0, 10, 100, 90}, {{0, 0, 100, 100}, -50}));
    EXPECT_FALSE(fillsDisplay(everywhere, {}));
}

} // namespace
} // namespace wumble::GameDetection
