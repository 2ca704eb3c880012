#include "Quietlark/CommandLine.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

using namespace command;

Refuse unknown(const std::string& option) {
    return {"Unknown option " + option + ", so Quietlark isn't starting.\n", 64};
}

const Refuse noAppearance{"--appearance takes light, dark or system\n", 2};

TEST(CommandLine, theFirstOptionOfTheTableDecidesAndAnUnknownOneOnlyWhereNoneDoes) {
    struct Case {
        std::vector<std::string> arguments;
        Command command;
    };
    const Case cases[] = {
        {{}, RunApplication{}},
        {{"word"}, RunApplication{}},
        {{"-x"}, RunApplication{}},
        {{"--demo-break"}, RunApplication{.demoBreak = true}},
        {{"--open-collage"}, RunApplication{.openCollage = true}},
        {{"--demo-break", "--nonsense", "--worse"}, unknown("--nonsense")},
        {{"--"}, unknown("--")},
        {{"--Diagnose"}, unknown("--Diagnose")},
        {{"--nonsense", "--diagnose"}, Diagnose{}},
        {{"--diagnose", "--watch-capture"}, WatchCapture{120}},
        {{"--watch-capture", "--watch-mic", "5"}, WatchMicrophone{5}},
        {{"--looks-sheets", "out", "--appearance", "Dark"},
         Render{"--looks-sheets", "out", wumble::Appearance::dark}},
        {{"--looks-sheets", "--appearance", "system"},
         Render{"--looks-sheets", "", wumble::Appearance::system}},
        {{"--diagnose", "--sprite-sheet", "--appearance", "sepia"}, Render{"--sprite-sheet", ""}},
        {{"--ux-review", "--render-previews", "out", "--appearance", "dark"},
         Render{"--render-previews", "out"}},
        {{"--nudge-clips", "--ux-review", "--appearance", "dark"},
         Render{"--ux-review", "", wumble::Appearance::dark}},
        {{"--app-icon", "out"}, Render{"--app-icon", "out"}},
        {{"--app-icon", "--check"}, KeepIcon{}},
        {{"--app-icon", "icons", "--sync"}, KeepIcon{"icons", true}},
        {{"--check"}, unknown("--check")},
        {{"--watch-mic", "0.5"}, WatchMicrophone{0.5}},
        {{"--watch-mic", "soon"}, WatchMicrophone{120}},
        {{"--watch-mic", "-3"}, WatchMicrophone{120}},
        {{"--watch-mic", "inf"}, WatchMicrophone{120}},
        {{"--appearance", "DARK"}, RunApplication{}},
        {{"--appearance"}, RunApplication{}},
        {{"--appearance", "sepia"}, noAppearance},
        {{"--appearance", "--diagnose"}, noAppearance},
        {{"--nonsense", "--appearance", "sepia"}, noAppearance},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(commandFor(each.arguments), each.command) << testing::PrintToString(each.arguments);
    }
}

} // namespace
} // namespace quietlark
