#include "Quietlark/Activity/SmartPauseDetector.h"
#include "Quietlark/Platform/ManualDesktop.h"

#include <gtest/gtest.h>
#include <thread>

namespace quietlark {
namespace {

namespace activity = wumble::activity;
using Kind = wumble::CaptureAttribution::Kind;
using wumble::SmartActivity;

constexpr wumble::Date noon{1'700'000'000};

class SmartPauseDetectorTest : public testing::Test {
protected:
    SmartPauseDetectorTest() {
        settings.dictationApps = {"org.dictate", "Voice Pad"};
        settings.videoFrontmostOnly = false;
        desktop.frontmost = editor;
    }

    std::optional<SmartActivity> poll() { return detector.poll(settings, noon); }
    const DetectorStatus& status() const { return detector.status(); }

    void hearCapturers(const std::string& list) {
        desktop.captureLines =
            R"({"eventMessage":"Active activity attributions changed to )" + list + "\"}\n";
        log.start();
        while (!log.latest()) {
            std::this_thread::yield();
        }
    }

    static AppRef app(int pid, std::string name, std::string id, std::vector<std::string> aliases = {}) {
        return {pid, std::move(name), std::move(id), std::move(aliases)};
    }

    const AppRef editor = app(10, "Editor", "org.editor");
    const AppRef call = app(20, "Talk", "org.talk");
    const AppRef dictation = app(30, "Dictate", "org.dictate.helper");

    ManualDesktop desktop;
    Platform platform = platformOf(desktop);
    wumble::WumbleSettings settings;
    CaptureLog log{std::move(platform.captureLogRunner), [] { return noon; }};
    SmartPauseDetector detector{platform, log};
};

TEST_F(SmartPauseDetectorTest, tellsACallFromDictation) {
    struct Case {
        const char* what;
        std::optional<std::vector<AppRef>> recording;
        bool inUse;
        bool dictating;
        std::vector<std::string> names;
    };
    const AppRef namedTool = app(31, "Voice Pad", "voicepad-bin", {"Voice Pad"});
    const AppRef systemTool = app(32, "Some SpeechRecognition service", "x");
    const AppRef nameless = app(33, "", "y");
    const Case cases[] = {
        {"nobody records", std::vector<AppRef>{}, false, false, {}},
        {"a tool of the list", {{dictation}}, false, true, {}},
        {"a tool listed by its name", {{namedTool}}, false, true, {}},
        {"the system's own", {{systemTool}}, false, true, {}},
        {"a call beside a tool", {{dictation, call}}, true, false, {"Talk"}},
        {"one program twice", {{call, call}}, true, false, {"Talk"}},
        {"plumbing alone", {{app(34, "coreaudiod", "z")}}, false, false, {}},
        {"a program that nobody knows", {{nameless}}, true, false, {"an app"}},
    };
    for (const Case& each : cases) {
        desktop.recordingApps = each.recording;
        const auto result = poll();
        EXPECT_EQ(status().microphoneInUse, each.inUse) << each.what;
        EXPECT_EQ(status().dictating, each.dictating) << each.what;
        EXPECT_EQ(status().microphoneApps, each.names) << each.what;
        EXPECT_EQ(result.has_value(), each.inUse) << each.what;
    }
}

TEST_F(SmartPauseDetectorTest, theQuickLookAtDictationLeavesTheRestAsItWas) {
    desktop.recordingApps = {{call}};
    poll();
    desktop.recordingApps = {{dictation}};
    detector.refreshDictation(settings);
    EXPECT_TRUE(status().dictating);
    EXPECT_TRUE(status().microphoneInUse);
}

TEST_F(SmartPauseDetectorTest, namesTheCallByARunningProgramWhereNobodyTellsWhoRecords) {
    desktop.recordingApps = std::nullopt;
    desktop.physicalMicrophoneRunning = true;
    desktop.running = {app(40, "slack", "com.tinyspeck.slackmacgap"), app(41, "zoom", "us.zoom.xos")};
    EXPECT_EQ(poll(), SmartActivity(activity::Meeting{"Zoom"}));
    desktop.running.clear();
    EXPECT_EQ(poll(), SmartActivity(activity::Meeting{std::nullopt}));
    desktop.physicalMicrophoneRunning = false;
    desktop.running = {app(41, "zoom", "us.zoom.xos")};
    EXPECT_EQ(poll(), std::nullopt);
    EXPECT_EQ(status().meetingApp, std::nullopt);
}

TEST_F(SmartPauseDetectorTest, weighsACallBeforeAShareBeforeFocusBeforeAGameBeforeVideo) {
    desktop.recordingApps = {{call}};
    desktop.screenWatched = true;
    desktop.inspections[editor.pid] = {{}, {"public.app-category.games"}};
    desktop.frontmostFillsAScreen = true;
    desktop.sleepHolders = {{app(50, "Player", "org.player"), "Playing video"}};
    settings.focusApps = {"org.editor"};

    EXPECT_EQ(poll(), SmartActivity(activity::Meeting{"Talk"}));
    settings.meetingUsesMicrophone = false;
    settings.meetingUsesCamera = true;
    EXPECT_EQ(poll(), SmartActivity(activity::ScreenSharing{"Talk"}));
    desktop.cameraInUse = true;
    EXPECT_EQ(poll(), SmartActivity(activity::Meeting{"Talk"}));
    settings.smartPauseMeetings = false;
    EXPECT_EQ(poll(), SmartActivity(activity::ScreenSharing{"Talk"}));
    settings.smartPauseScreenSharing = false;
    EXPECT_EQ(poll(), SmartActivity(activity::FocusApp{"Editor"}));
    settings.focusApps.clear();
    EXPECT_EQ(poll(), SmartActivity(activity::Game{"Editor"}));
    desktop.frontmostFillsAScreen = false;
    EXPECT_EQ(poll(), SmartActivity(activity::Video{"Player"}));
    settings.videoFrontmostOnly = true;
    EXPECT_EQ(poll(), std::nullopt);
}

TEST_F(SmartPauseDetectorTest, namesAWatcherWithoutAWordByWhatRuns) {
    const AppRef recorder = app(60, "obs", "com.obsproject.obs-studio");
    desktop.screenWatched = true;
    EXPECT_EQ(poll(), SmartActivity(activity::ScreenSharing{std::nullopt}));
    desktop.processes = {"screencaptureui"};
    EXPECT_EQ(poll(), SmartActivity(activity::ScreenSharing{"the Screenshot toolbar"}));
    settings.smartPauseMeetings = false;
    desktop.recordingApps = {{call}};
    EXPECT_EQ(poll(), SmartActivity(activity::ScreenSharing{"Talk"}));
    desktop.frontmost = recorder;
    EXPECT_EQ(poll(), SmartActivity(activity::ScreenSharing{"OBS"}));
    desktop.processes.emplace_back("CptHost");
    EXPECT_EQ(poll(), SmartActivity(activity::ScreenSharing{"Zoom"}));
}

TEST_F(SmartPauseDetectorTest, aDismissedCaptureStaysDismissedUntilItEnds) {
    desktop.screenWatched = true;
    detector.ignoreCurrentCapture = true;
    EXPECT_EQ(poll(), std::nullopt);
    EXPECT_TRUE(status().captureIgnored);
    EXPECT_FALSE(status().screenCaptured);
    desktop.screenWatched = false;
    poll();
    EXPECT_FALSE(status().captureIgnored);
    desktop.screenWatched = true;
    EXPECT_TRUE(poll().has_value());
    desktop.screenWatched = std::nullopt;
    EXPECT_EQ(poll(), std::nullopt);
    EXPECT_FALSE(status().captureDetectionAvailable);
}

TEST_F(SmartPauseDetectorTest, aShareIsNamedByTheLogAndOthersAreNoShare) {
    desktop.screenWatched = true;
    desktop.running = {app(70, "Browser Helper", "org.browser")};
    hearCapturers(R"([\"scr:com.openai.codex\",\"scr:org.browser\"])");
    EXPECT_EQ(poll(), SmartActivity(activity::ScreenSharing{"Browser"}));
}

TEST_F(SmartPauseDetectorTest, aWatcherFromAfarIsNamedBeforeATool) {
    desktop.screenWatched = true;
    hearCapturers(R"([\"scr:com.openai.codex\",\"scr:com.apple.RemoteDesktopAgent\"])");
    EXPECT_EQ(poll(), std::nullopt);
    EXPECT_EQ(status().captureNotSharing, (NotSharing{"Remote Management", Kind::remote}));
    EXPECT_FALSE(status().screenCaptured);
}

TEST_F(SmartPauseDetectorTest, playbackIsWhatHoldsTheDisplayAwakeForVideo) {
    struct Case {
        const char* what;
        SleepHolder holder;
        bool counts;
    };
    const AppRef player = app(80, "Player", "org.player");
    const Case cases[] = {
        {"a player", {player, "Playing video"}, true},
        {"another reason", {player, "Presenting"}, false},
        {"a keep-awake tool", {app(81, "caffeinate", "c"), "Playing video"}, false},
        {"a player in another language", {app(85, "Films", "org.films"), "Wiedergabe"}, true},
        {"a player of music", {app(86, "Songs", "org.songs"), "Wiedergabe"}, false},
        {"this program", {app(82, "quietlark", "q"), "video"}, false},
        {"an excluded program", {app(83, "Cutter", "org.cutter.beta"), "video"}, false},
        {"a game", {app(84, "Game", "org.game"), "video"}, false},
    };
    settings.videoExcludedApps = {"org.Cutter"};
    desktop.inspections[84] = {{}, {"public.app-category.games"}};
    desktop.inspections[85] = {{}, {"public.app-category.audiovideo", "public.app-category.player"}};
    desktop.inspections[86] = {{}, {"public.app-category.audio", "public.app-category.player"}};
    for (const Case& each : cases) {
        desktop.sleepHolders = {each.holder};
        EXPECT_EQ(poll().has_value(), each.counts) << each.what;
        EXPECT_EQ(status().videoApp.has_value(), each.counts) << each.what;
    }
    desktop.sleepHolders = {cases[1].holder, cases[0].holder};
    desktop.frontmost = app(90, "Player Window", "x");
    settings.videoFrontmostOnly = true;
    EXPECT_EQ(poll(), SmartActivity(activity::Video{"Player"})) << "one name begins the other";
}

TEST_F(SmartPauseDetectorTest, aProcessIsInspectedOnceAndAReusedNumberAnew) {
    desktop.executables[editor.pid] = "/usr/bin/editor";
    poll();
    poll();
    EXPECT_EQ(desktop.inspectionCount, 1);
    desktop.executables[editor.pid] = "/opt/games/other";
    desktop.inspections[editor.pid] = {{}, {"public.app-category.games"}};
    poll();
    EXPECT_EQ(desktop.inspectionCount, 2);
    EXPECT_EQ(status().gameApp, "Editor");
}

} // namespace
} // namespace quietlark
