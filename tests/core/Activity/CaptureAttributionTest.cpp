#include "WumbleCore/Activity/CaptureAttribution.h"

#include <gtest/gtest.h>

namespace wumble::CaptureAttribution {
namespace {

using IDs = std::vector<std::string>;

TEST(CaptureAttribution, readsWhoWatchesFromALineOfTheLog) {
    struct Case {
        const char* line;
        std::optional<IDs> capturers;
    };
    const Case cases[] = {
        {R"({"eventMessage":"Active activity attributions changed to []"})", IDs{}},
        {R"({"eventMessage":"Active activity attributions changed to [\"mic:a.b\"]"})", IDs{}},
        {R"({"pid":7,"x":[{}],"eventMessage":"Active activity attributions changed to [\"scr:b\", \"cam:c\",\"scr:a\",\"scr:b\",\"scr:\"]"})",
         IDs{"b", "a", "b", ""}},
        {R"({"eventMessage":"Active activity attributions changed to [\"SCR:a\",\" scr:b\"]"})", IDs{}},
        {R"({"eventMessage":"Active activity attributions changed to [1]"})", std::nullopt},
        {R"({"eventMessage":"Active activity attributions changed to {}"})", std::nullopt},
        {R"({"eventMessage":"Active activity attributions changed to "})", std::nullopt},
        {R"({"eventMessage":"Active activity attributions changed to [\"scr:a\"] and"})", std::nullopt},
        {R"({"eventMessage":" Active activity attributions changed to []"})", std::nullopt},
        {R"({"eventMessage":"Frame publisher cameras changed to []"})", std::nullopt},
        {R"({"eventMessage":7})", std::nullopt},
        {R"({"message":"Active activity attributions changed to []"})", std::nullopt},
        {R"({"eventMessage":"Active activity attributions changed to [])", std::nullopt},
        {R"(["eventMessage"])", std::nullopt},
        {"Filtering the log data using \"eventMessage\"", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [line, capturers] : cases) {
        EXPECT_EQ(screenCapturersInLogLine(line), capturers) << line;
    }
}

TEST(CaptureAttribution, tellsSharesFromAgentsAndRemotes) {
    struct Case {
        const char* id;
        Kind kind;
    };
    const Case cases[] = {
        {"us.zoom.xos", Kind::share},
        {"", Kind::share},
        {"com.openai.chat", Kind::agent},
        {"com.openai.chat.helper", Kind::agent},
        {"com.openai.chatter", Kind::share},
        {"com.openai", Kind::share},
        {"com.anthropic.claudefordesktop", Kind::agent},
        {"com.apple.screensharing.agent.foo", Kind::remote},
        {"com.apple.screensharing", Kind::share},
        {"com.apple.remotedesktopagent", Kind::share},
        {"com.apple.RemoteDesktopAgent", Kind::remote},
    };
    for (const auto& [id, expected] : cases) {
        EXPECT_EQ(kind(id), expected) << id;
    }
}

TEST(CaptureAttribution, isOnlyRemoteWhenSomebodyIsAndNobodyShares) {
    const std::string remote = "com.apple.RemoteDesktopAgent";
    const std::string agent = "com.openai.codex";
    EXPECT_FALSE(onlyRemote(std::nullopt));
    EXPECT_FALSE(onlyRemote(IDs{}));
    EXPECT_TRUE(onlyRemote(IDs{remote}));
    EXPECT_TRUE(onlyRemote(IDs{agent, remote}));
    EXPECT_FALSE(onlyRemote(IDs{agent}));
    EXPECT_FALSE(onlyRemote(IDs{remote, "us.zoom.xos"}));
}

TEST(CaptureAttribution, namesOnlyThoseWhoseOwnNameWouldNotDo) {
    EXPECT_EQ(knownName("com.apple.screencaptureui"), "the Screenshot toolbar");
    EXPECT_EQ(knownName("us.zoom.xos"), "Zoom");
    EXPECT_FALSE(knownName("us.zoom.xos.helper"));
}

} // namespace
} // namespace wumble::CaptureAttribution
