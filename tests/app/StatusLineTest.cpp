#include "tests/app/ModelDriver.h"

namespace quietlark::test {

namespace {

namespace activity = wumble::activity;
using wumble::WumbleMood;

const wumble::Date noon = at("2026-03-11T11:00:00Z"); // a Wednesday in Berlin

void hold(AppState& state, const wumble::HoldReason& reason) { state.hold = reason; }
void pausedBy(AppState& state, const wumble::PauseReason& reason) {
    state.phase = wumble::Phase(wumble::phase::Paused{reason});
}
void onBreak(AppState& state, std::optional<bool> preview, double since) {
    state.phase = wumble::Phase(
        wumble::phase::OnBreak{{.startedAt = noon - since, .duration = 45, .preview = preview}});
}

struct Line {
    std::function<void(AppState&)> arrange;
    const char* says;
    WumbleMood mood;
};

/// Working, the next quick break in 4:05, unless a line says otherwise.
const std::vector<Line>& lines() {
    static const std::vector<Line> all{
        {[](auto&) {}, "Quick break in 4:05", WumbleMood::idle},
        {[](auto& s) { s.upcomingKind = wumble::BreakKind::longBreak; }, "Long break in 4:05",
         WumbleMood::idle},
        {[](auto& s) { onBreak(s, {}, 15); }, "On a break · 0:30 left", WumbleMood::resting},
        {[](auto& s) { onBreak(s, {}, 60); }, "On a break · 0:00 left", WumbleMood::resting},
        {[](auto& s) { onBreak(s, true, 15); }, "Previewing a break · nothing is counted",
         WumbleMood::resting},
        {[](auto& s) { pausedBy(s, wumble::pause::Manual{}); }, "Paused until you resume",
         WumbleMood::sleeping},
        {[](auto& s) { pausedBy(s, wumble::pause::Manual{noon + 1800}); }, "Paused · resumes in 30 min",
         WumbleMood::sleeping},
        {[](auto& s) { pausedBy(s, wumble::pause::Away{noon - 299}); }, "Away · paused with 4:05 to go",
         WumbleMood::sleeping},
        {[](auto& s) { pausedBy(s, wumble::pause::Away{noon - 300}); },
         "Away 5 min · counts as your long break", WumbleMood::sleeping},
        {[](auto& s) {
             pausedBy(s, wumble::pause::Away{noon - 600});
             s.settings = wumble::WumbleSettings{.longBreaksEnabled = false};
         },
         "Away 10 min · counts as a break", WumbleMood::sleeping},
        {[](auto& s) { pausedBy(s, wumble::pause::Away{noon - 14400}); },
         "Away 4 hr · fresh start when you're back", WumbleMood::sleeping},
        {[](auto& s) { pausedBy(s, wumble::pause::OffHours{}); }, "Off hours · back on your next workday",
         WumbleMood::sleeping},
        {[](auto& s) { s.phase = wumble::Phase(wumble::phase::Stopped{}); }, "Wumble is off",
         WumbleMood::sleeping},
        {[](auto& s) { hold(s, wumble::hold::Smart{activity::Meeting{"Zoom"}}); },
         "Quick break in 4:05 · On a call in Zoom", WumbleMood::humming},
        {[](auto& s) {
             hold(s, wumble::hold::Smart{activity::Video{}});
             s.secondsUntilBreak = 0;
             s.overdue = 185;
         },
         "Watching a video · waiting 3 min", WumbleMood::humming},
        {[](auto& s) {
             hold(s, wumble::hold::Typing{});
             s.typingHoldEnds = noon + 42;
         },
         "Break waits for you to finish typing · up to 0:42", WumbleMood::waiting},
        {[](auto& s) { s.readingUntil = noon + 60; }, "Snoozed · quick break in 4:05", WumbleMood::humming},
        {[](auto& s) { s.readingUntil = noon; }, "Quick break in 4:05", WumbleMood::idle},
        {[](auto& s) { s.breatherAfter = activity::Meeting{}; }, "Quick break in 4:05 · call's done",
         WumbleMood::idle},
        {[](auto& s) { s.breatherAfter = activity::ScreenSharing{}; }, "Quick break in 4:05 · done sharing",
         WumbleMood::idle},
        {[](auto& s) { s.breatherAfter = activity::Video{}; }, "Quick break in 4:05 · done watching",
         WumbleMood::idle},
        {[](auto& s) { s.breatherAfter = activity::Game{"X"}; }, "Quick break in 4:05 · out of the game",
         WumbleMood::idle},
        {[](auto& s) { s.breatherAfter = activity::FocusApp{"X"}; }, "Quick break in 4:05 · focus is done",
         WumbleMood::idle},
        {[](auto& s) {
             s.ignoringSmartPause = true;
             s.rawSmartActivity = activity::Video{};
         },
         "Not waiting till your next break · quick break in 4:05", WumbleMood::idle},
        {[](auto& s) { s.ignoringSmartPause = true; }, "Quick break in 4:05", WumbleMood::idle},
        {[](auto& s) { s.headsUpVisible = true; }, "Quick break in 4:05", WumbleMood::peek},
        {[](auto& s) {
             s.headsUpVisible = true;
             s.nodUntil = noon + 1;
         },
         "Quick break in 4:05", WumbleMood::nodding},
        {[](auto& s) {
             onBreak(s, {}, 15);
             s.celebrateUntil = noon + 1;
         },
         "On a break · 0:30 left", WumbleMood::celebrate},
    };
    return all;
}

} // namespace

TEST(StatusLine, andMoodSayWhatTheClockIsDoing) {
    for (const Line& line : lines()) {
        AppState state;
        state.now = noon;
        state.secondsUntilBreak = 245;
        line.arrange(state);
        EXPECT_EQ(statusLine(state, ModelDriver::calendar()), line.says);
        EXPECT_EQ(mood(state), line.mood) << line.says;
    }
}

TEST(StatusLine, tellsWhenOfficeHoursComeBack) {
    struct Case {
        const char* now;
        const char* says;
    };
    for (const auto& [now, says] :
         {Case{"2026-03-09T05:00:00Z", "Off hours · back at 10:00\u202fAM"},
          Case{"2026-03-09T20:00:00Z", "Off hours · back tomorrow at 10:00\u202fAM"},
          Case{"2026-03-13T20:00:00Z", "Off hours · back Monday at 10:00\u202fAM"}}) {
        AppState state;
        state.now = at(now);
        state.settings = wumble::WumbleSettings{.officeHoursEnabled = true};
        pausedBy(state, wumble::pause::OffHours{});
        const std::string line = statusLine(state, ModelDriver::calendar());
        std::string plain = says;
        if (line.find("\u202f") == std::string::npos) {
            plain.replace(plain.find("\u202f"), std::string("\u202f").size(), " ");
        }
        EXPECT_EQ(line, plain);
    }
}

TEST(StatusLine, aShareUnderACallExplainsWhyTheWaitGoesOn) {
    AppState state;
    hold(state, wumble::hold::Smart{activity::Meeting{}});
    EXPECT_EQ(shareKeepsWaitingNote(state), std::nullopt);
    state.liveShare = activity::ScreenSharing{};
    EXPECT_EQ(shareKeepsWaitingNote(state), "You're sharing your screen too, so Wumble keeps waiting");
    state.detectorStatus = DetectorStatus{.captureIgnored = true};
    EXPECT_EQ(shareKeepsWaitingNote(state), "Your screen may be shared too, so Wumble keeps waiting");
    hold(state, wumble::hold::Smart{activity::Video{}});
    EXPECT_EQ(shareKeepsWaitingNote(state), std::nullopt);
}

} // namespace quietlark::test
