#include "Quietlark/Diagnosis/Report.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

using Kind = wumble::CaptureAttribution::Kind;

TEST(Report, tellsNothingWhereNothingIsKnown) {
    EXPECT_EQ(Report::diagnosis({.dataFolder = "/home/a/Quietlark"}), "data folder:      /home/a/Quietlark\n"
                                                                      "idle seconds:     0.0\n"
                                                                      "since key press:  1000000000.0\n"
                                                                      "microphone:       idle  apps: \n"
                                                                      "screen capture:   unavailable\n"
                                                                      "capturers (log):  unknown\n"
                                                                      "camera:           idle\n"
                                                                      "meeting app:      none running\n"
                                                                      "video/keep-awake: none\n"
                                                                      "game in front:    none\n"
                                                                      "frontmost app:    none\n"
                                                                      "auto-pause now:  none\n");
}

TEST(Report, tellsAllThatIsKnown) {
    Report::Findings findings{.dataFolder = "/d",
                              .idleSeconds = 12.34,
                              .secondsSinceKeyPress = 99.96,
                              .status = {.microphoneInUse = true,
                                         .microphoneApps = {"Talk", "Tab"},
                                         .cameraInUse = true,
                                         .meetingApp = "Talk",
                                         .screenCaptured = true,
                                         .captureDetectionAvailable = true,
                                         .videoApp = "Player",
                                         .videoAppIsFrontmost = true,
                                         .gameApp = "Blocks",
                                         .frontmostName = "Player",
                                         .frontmostBundleID = "org.player"},
                              .capturers = {{"a", "b"}},
                              .activity = wumble::activity::Meeting{"Talk"}};
    EXPECT_EQ(Report::diagnosis(findings), "data folder:      /d\n"
                                           "idle seconds:     12.3\n"
                                           "since key press:  100.0\n"
                                           "microphone:       in use  apps: Talk, Tab\n"
                                           "screen capture:   detected (unknown app)\n"
                                           "capturers (log):  a, b\n"
                                           "camera:           in use\n"
                                           "meeting app:      Talk\n"
                                           "video/keep-awake: Player (frontmost)\n"
                                           "game in front:    Blocks (in a window)\n"
                                           "frontmost app:    Player [org.player]\n"
                                           "auto-pause now:  On a call in Talk\n");
    EXPECT_EQ(Report::microphoneLine(findings, "09:41:00"),
              "09:41:00  in use  mic apps: [Talk, Tab]  dictating: false  auto-pause: On a call in Talk");
    EXPECT_EQ(Report::captureLine(findings),
              "capturers: [a, b]  share: unnamed  auto-pause: On a call in Talk");
}

TEST(Report, tellsAWatcherThatIsNoShareAndDictation) {
    const Report::Findings findings{
        .status = {.dictating = true,
                   .captureNotSharing = NotSharing{"Screen Sharing", Kind::remote},
                   .captureDetectionAvailable = true,
                   .gameApp = "Blocks",
                   .gameFillsScreen = true},
        .capturers = std::vector<std::string>{}};
    const std::string report = Report::diagnosis(findings);
    for (const char* line : {"microphone:       idle  apps:  (dictation)\n",
                             "screen capture:   not a share (Screen Sharing, remote)\n",
                             "capturers (log):  none\n", "game in front:    Blocks (fills the screen)\n"}) {
        EXPECT_NE(report.find(line), std::string::npos) << line;
    }
    EXPECT_EQ(Report::captureLine(findings),
              "capturers: [none]  not a share: Screen Sharing (remote)  auto-pause: none");
}

} // namespace
} // namespace quietlark
