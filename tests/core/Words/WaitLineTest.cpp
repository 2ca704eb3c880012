#include "WumbleCore/Words/WaitLine.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

TEST(WaitLine, tellsUntilWhenAndNamesTheAppThatCounts) {
    struct Case {
        SmartActivity activity;
        const char *title, *waitLine;
    };
    const Case cases[] = {
        {activity::Meeting{}, "On a call", "until your call ends"},
        {activity::Meeting{"Zoom"}, "On a call in Zoom", "until your call ends"},
        {activity::ScreenSharing{}, "Sharing your screen", "until you stop sharing"},
        {activity::ScreenSharing{"Zoom"}, "Sharing your screen via Zoom", "until Zoom stops sharing"},
        {activity::Video{}, "Watching a video", "until the video stops"},
        {activity::Video{"Films"}, "Watching video in Films", "until the video stops"},
        {activity::Game{"Chess"}, "Playing Chess", "while you're in Chess"},
        {activity::FocusApp{"Letters"}, "Deep focus in Letters", "while you're in Letters"},
    };
    for (const auto& [activity, expectedTitle, expectedLine] : cases) {
        EXPECT_EQ(title(activity), expectedTitle);
        EXPECT_EQ(waitLine(activity), expectedLine);
    }
}

} // namespace
} // namespace wumble
