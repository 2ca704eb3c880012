#include "WumbleCore/Activity/AppBundle.h"

#include <gtest/gtest.h>

namespace wumble::AppBundle {
namespace {

using Paths = std::vector<std::string>;

TEST(AppBundle, namesEveryBundleAroundAnExecutableFromTheOutside) {
    struct Case {
        const char* executable;
        Paths bundles;
        std::optional<std::string> product;
    };
    const Case cases[] = {
        {"/Applications/Zoom.app/Contents/Frameworks/Cpt Helper.app/Contents/MacOS/cpt",
         {"/Applications/Zoom.app", "/Applications/Zoom.app/Contents/Frameworks/Cpt Helper.app"},
         "Zoom"},
        {"//opt///Foo Helper.app/x", {"/opt/Foo Helper.app"}, "Foo"},
        {"Foo.app/x", {"/Foo.app"}, "Foo"},
        {"/opt/Foo.app", {"/opt/Foo.app"}, "Foo"},
        {"/opt/Foo.app/", {"/opt/Foo.app"}, "Foo"},
        {"/opt/Foo.application/Foo.APP/Foo Helper", {}, "Foo Helper"},
        {"/opt/.app/tool", {"/opt/.app"}, "tool"},
        {"/usr/bin/steam", {}, "steam"},
        {"/", {}, std::nullopt},
        {"", {}, std::nullopt},
    };
    for (const auto& [executable, bundles, product] : cases) {
        SCOPED_TRACE(executable);
        EXPECT_EQ(appPaths(executable), bundles);
        EXPECT_EQ(outermostBundlePath(executable),
                  bundles.empty() ? std::nullopt : std::optional(bundles.front()));
        EXPECT_EQ(productName(executable), product);
    }
}

} // namespace
} // namespace wumble::AppBundle
