#include "tools/wumble-replay/Replay.h"

#include <cstdio>
#include <fstream>

#include <gtest/gtest.h>
#include <sys/wait.h>

namespace wumble::replay {
namespace {

/// The answers to these lines, the first of which is line 1.
std::vector<std::string> answers(const std::vector<std::string>& lines) {
    Replay replay;
    std::vector<std::string> all;
    for (std::size_t number = 1; number <= lines.size(); ++number) {
        if (const auto answer = replay.answer(lines[number - 1], number)) {
            all.push_back(*answer);
        }
    }
    return all;
}

const std::string newEngine = R"({"do":"new","now":0})";

TEST(Replay, passesOverBlankLinesAndComments) {
    Replay replay;
    for (const char* line : {"", " \t", "\r", "# a comment"}) {
        EXPECT_FALSE(replay.answer(line, 1));
    }
    EXPECT_FALSE(replay.hadErrors());
}

TEST(Replay, tellsInWhichLineWhatIsWrongAndGoesOn) {
    struct Case {
        const char *line, *reason;
    };
    const Case cases[] = {
        {"{", "not JSON: "},
        {R"({"do":"tick","now":1} {})", "not JSON: "},
        {"[]", "not a JSON object"},
        {"{}", "\\\"do\\\" is missing"},
        {R"({"do":7})", "\\\"do\\\" is of the wrong type"},
        {R"({"do":"fly"})", "unknown command \\\"fly\\\""},
        {R"({"do":"tick"})", "\\\"now\\\" is missing"},
        {R"({"do":"tick","now":null})", "\\\"now\\\" is of the wrong type"},
        {R"({"do":"tick","now":true})", "\\\"now\\\" is of the wrong type"},
        {R"({"do":"tick","now":1e999})", "\\\"now\\\" is of the wrong type"},
        {R"({"do":"tick","now":1,"screenLocked":1})", "\\\"screenLocked\\\" is of the wrong type"},
        {R"({"do":"tick","now":1,"smartActivity":"video"})", "\\\"smartActivity\\\" is no object"},
        {R"({"do":"tick","now":1,"smartActivity":{"game":{}}})", "\\\"smartActivity\\\" is no activity"},
        {R"({"do":"tick","now":1,"liveShare":{"video":{},"meeting":{}}})",
         "\\\"liveShare\\\" is no activity"},
        {R"({"do":"startBreak","now":1,"kind":"tea"})", "\\\"kind\\\" is of the wrong type"},
        {R"({"do":"startPreview","now":1})", "\\\"duration\\\" is missing"},
        {R"({"do":"snooze","now":1})", "\\\"by\\\" is missing"},
        {R"({"do":"update","settings":{"volume":"loud"}})", "\\\"settings\\\" has a value of the wrong type"},
        {R"({"do":"update"})", "\\\"settings\\\" is missing"},
        {R"({"do":"restore","now":1,"snapshot":{"stopped":false}})", "\\\"snapshot\\\" can't be read"},
        {R"({"do":"run","until":5})", "\\\"every\\\" is missing"},
        {R"({"do":"run","until":5,"every":0})", "\\\"every\\\" is not above 0"},
        {R"({"do":"run","until":1e300,"every":1})", "\\\"until\\\" is more than"},
        {R"({"do":"calendar","timeZone":"Mars/Olympus","firstWeekday":2})", "unknown time zone"},
        {R"({"do":"calendar","timeZone":"Europe/Berlin","firstWeekday":8})",
         "\\\"firstWeekday\\\" is not from"},
        {R"({"do":"calendar","timeZone":"Europe/Berlin"})", "\\\"firstWeekday\\\" is missing"},
    };
    for (const auto& [line, reason] : cases) {
        const auto all = answers({"# a comment", newEngine, "", line, R"({"do":"query","now":0})"});
        ASSERT_EQ(all.size(), 3U) << line;
        EXPECT_TRUE(all[1].starts_with(R"({"error":")" + std::string(reason)) &&
                    all[1].ends_with(R"(","line":4})"))
            << all[1];
        EXPECT_EQ(all[2], all[0]) << "changed by " << line;
    }
    EXPECT_EQ(answers({R"({"do":"tick","now":1})"}).front(),
              R"({"error":"\"tick\" needs an engine; \"new\" makes one","line":1})");
}

TEST(Replay, runsAsSingleTicksWould) {
    const std::string signals = R"("secondsSinceKeyDown":1,"liveShare":{"screenSharing":{}})";
    Replay ticked;
    Replay run;
    std::string events;
    std::string last;
    for (Replay* replay : {&ticked, &run}) {
        replay->answer(
            R"({"do":"new","now":0,"settings":{"workInterval":20,"shortBreakDuration":5,"headsUp":"all"}})",
            1);
    }
    for (double now = 2.5; now <= 7200; now += 2.5) {
        last = *ticked.answer(R"({"do":"tick","now":)" + std::to_string(now) + "," + signals + "}", 2);
        const auto told = *parseJson(last).value->object()->at("events").array();
        for (const auto& event : told) {
            events += Json(Json::Object{{"at", now}, {"event", event}}).text().value();
        }
    }
    const auto answer =
        parseJson(*run.answer(R"({"do":"run","until":7201,"every":2.5,)" + signals + "}", 2)).value;
    std::string runEvents;
    for (const auto& event : *answer->object()->at("events").array()) {
        runEvents += event.text().value();
    }
    EXPECT_EQ(runEvents, events);
    EXPECT_GT(events.size(), 1000U);
    EXPECT_EQ(answer->object()->at("ticks").wholeNumber(), 2880);
    EXPECT_EQ(answer->object()->at("state").text(), parseJson(last).value->object()->at("state").text());
}

TEST(Replay, restoresItsOwnSnapshot) {
    Replay replay;
    replay.answer(R"({"do":"new","now":0,"settings":{"workInterval":600}})", 1);
    replay.answer(R"({"do":"run","until":700,"every":1})", 2);
    replay.answer(R"({"do":"snooze","now":700,"by":100})", 3);
    const auto before = replay.answer(R"({"do":"query","now":700})", 4);
    const std::string snapshot = *replay.answer(R"({"do":"snapshot","now":700})", 5);
    EXPECT_NE(snapshot.find(R"("savedAt":"1970-01-01T00:11:40Z")"), std::string::npos);
    replay.answer(R"({"do":"stop","now":701})", 6);
    const auto restored = replay.answer(R"({"do":"restore","now":700,)" + snapshot.substr(1), 7);
    // What is seen today alone isn't kept.
    const auto withoutToday = [](const std::string& answer) {
        Json json = *parseJson(answer).value;
        json.object()->at("state").object()->erase("longestStretchToday");
        return json.text().value();
    };
    EXPECT_EQ(withoutToday(*restored), withoutToday(*before));
}

TEST(Replay, laysAnUpdateOverThePresentSettingsAndFitsIt) {
    const auto all = answers({R"({"do":"new","now":0,"settings":{"workInterval":1500,"moveInterval":4500}})",
                              R"({"do":"update","settings":{"workInterval":1000,"hats":3}})",
                              R"({"do":"nudgeTimes","span":900})", R"({"do":"run","until":3100,"every":1})",
                              R"({"do":"settings","text":"nonsense"})"});
    EXPECT_NE(all[1].find(R"("breakTarget":1000,)"), std::string::npos);
    EXPECT_EQ(all[2], R"({"times":[450]})");
    EXPECT_NE(all[3].find(R"("upcomingKind":"long")"), std::string::npos); // still every third
    EXPECT_NE(all[4].find(R"("moveInterval":3600,)"), std::string::npos);
}

/// Runs the program itself with a line of shell around it.
struct Ended {
    int status;
    std::string output;
};
Ended shell(const std::string& before, const std::string& after) {
    FILE* pipe = popen((before + REPLAY_PROGRAM + after).c_str(), "r");
    std::string output;
    for (int character = std::fgetc(pipe); character != EOF; character = std::fgetc(pipe)) {
        output += static_cast<char>(character);
    }
    return {WEXITSTATUS(pclose(pipe)), output};
}

TEST(ReplayProgram, endsWithAStatusThatTellsWhetherAllWentWell) {
    const std::string fine = R"({"do":"fittedMove","move":3100,"eye":1200})";
    EXPECT_EQ(shell("printf '" + fine + "' | ", "").output, "{\"value\":3600}\n");
    EXPECT_EQ(shell("printf '" + fine + "' | ", "").status, 0);
    const auto [status, output] = shell("printf '" + fine + "\\n\\nfly\\n# bye\\n" + fine + "\\n' | ", "");
    EXPECT_EQ(status, 1);
    EXPECT_TRUE(output.ends_with(",\"line\":3}\n{\"value\":3600}\n")) << output;
    EXPECT_EQ(shell("", " < /dev/null").status, 0);
    EXPECT_EQ(shell("", " < /dev/null").output, "");
}

TEST(ReplayProgram, printsItsCommandsAndKnowsNoOtherOption) {
    const auto [status, output] = shell("", " --help");
    EXPECT_EQ(status, 0);
    for (const char* command :
         {"calendar", "new", "tick", "run", "restore", "settings", "history", "choreography"}) {
        EXPECT_NE(output.find("{\"do\":\"" + std::string(command) + "\"}"), std::string::npos) << command;
    }
    for (const char* wrong : {" --hlep", " recording.jsonl", " --help me"}) {
        const auto refused = shell("", std::string(wrong) + " 2>&1 < /dev/null");
        EXPECT_EQ(refused.status, 64) << wrong;
        EXPECT_TRUE(refused.output.starts_with("wumble-replay: ")) << refused.output;
    }
}

} // namespace
} // namespace wumble::replay
