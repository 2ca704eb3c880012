#include "tools/wumble-replay/Replay.h"

#include <gtest/gtest.h>

namespace wumble::replay {
namespace {

struct Exchange {
    std::string line, answer;
};

void expectAnswers(const std::vector<Exchange>& exchanges) {
    Replay replay;
    for (const auto& [line, answer] : exchanges) {
        EXPECT_EQ(replay.answer(line, 1), answer) << line;
    }
}

std::string recordEnding(const std::string& end, const std::string& outcome) {
    return R"({"do":"record","record":{"id":"A61CF892-CCD6-4186-8C3A-D11F70CB2C90","kind":"short","outcome":")" +
           outcome + R"(","scheduledDuration":45,"snoozes":0,"start":1773057600,"end":)" + end +
           R"(},"draws":[]})";
}

const std::string firstTraits =
    R"("traits":{"accessory":"scarf","cheeks":"freckles","eyes":"almond","keepsake":"tea","mouth":"wavy","personality":"dreamy"})";

std::string pet(const std::string& rests, const std::string& skips) {
    return R"({"base":"sakura","day":"2026-03-09","rests":)" + rests + R"(,"skips":)" + skips +
           R"(,"spriteVersion":3,)" + firstTraits + "}";
}

TEST(LifeCommands, playADayFromItsPetToItsRecap) {
    expectAnswers({
        {R"({"do":"calendar","timeZone":"Europe/Berlin","firstWeekday":2})", R"({"ok":true})"},
        {R"({"do":"today","date":1773057600,"draws":[19,-5,49,3,4,5,-9]})",
         R"({"day":)" + pet("0", "0") + R"(,"drawsUsed":7})"},
        {R"({"do":"today","date":1773010800,"draws":[]})",
         R"({"day":)" + pet("0", "0") + R"(,"drawsUsed":0})"},
        {R"({"do":"story","day":"2026-03-09"})",
         R"({"detail":"Wumble is proud of you.","revealTimes":[],"story":[]})"},
        {recordEnding("1773057645", "completed"),
         R"({"after":1,"before":0,"day":)" + pet("1", "0") + R"(,"earnsGrowth":true})"},
        {recordEnding("1773057600", "skipped"),
         R"({"after":1,"before":1,"day":)" + pet("1", "1") + R"(,"earnsGrowth":false})"},
        {recordEnding("1773057645.5", "completed"),
         R"({"after":2,"before":1,"day":)" + pet("2", "1") + R"(,"earnsGrowth":true})"},
        {R"({"do":"story","day":"2026-03-09"})",
         R"({"announcement":"A first expression!","detail":"A face for a very busy daydreamer.","revealTimes":[1773057645,1773057645.5],"story":[{"time":1773057645,"title":"Opened its eyes"},{"time":1773057645.5,"title":"Found its expression"}]})"},
        {R"({"do":"recap","period":"week","date":1773057600})",
         R"({"awayTime":0,"completed":2,"completionRate":0.6666666666666666,"dates":[1773010800,1773097200,1773183600,1773270000,1773356400,1773442800,1773529200],"end":1773615600,"fullyRevealed":0,"isEmpty":false,"key":"week-2026-03-09","natural":0,"restTime":90.5,"skipped":1,"start":1773010800,"wumbles":["2026-03-09",null,null,null,null,null,null]})"},
        {R"({"do":"recaps","now":1773615600,"announced":["month-2026-02"],"seen":["week-2026-03-09"]})",
         R"({"due":["week-2026-03-09"],"justFinished":["month-2026-02","week-2026-03-09"]})"},
        {R"({"do":"recaps","now":1773615600,"announced":["week-2026-03-09"],"seen":[]})",
         R"({"due":[],"justFinished":["month-2026-02","week-2026-03-09"],"unseen":"week-2026-03-09"})"},
        {R"({"do":"markSeen","period":"month","date":1773057600,"now":1773615600})", R"({"changed":false})"},
        {R"({"do":"markSeen","period":"week","date":1773057600,"now":1773615600})",
         R"({"changed":true,"seenRecaps":["week-2026-03-09"]})"},
        {R"({"do":"markSeen","period":"week","date":1773057600,"now":1773615600})",
         R"({"changed":false,"seenRecaps":["week-2026-03-09"]})"},
        {R"({"do":"streak","date":1773057600})", R"({"streak":1})"},
    });
}

TEST(LifeCommands, loadALifeAsItsFileWouldBe) {
    const std::string fresh = R"({"life":{"days":{},"name":"Wumble"}})";
    const std::string skips =
        R"({"days":{"2026-03-06":{"base":"kuri","day":"2026-03-06","rests":1},"2026-03-07":{"base":"kuri","day":"2026-03-07","skips":1}},"name":"Momo"})";
    expectAnswers({
        {R"({"do":"life","life":{"days":{},"name":"Momo","welcomed":true,"later":1}})",
         R"({"life":{"days":{},"name":"Momo","welcomed":true}})"},
        {R"({"do":"life","life":{"days":{}}})", fresh},
        {R"({"do":"life","life":null})", fresh},
        {R"({"do":"life"})", fresh},
        {R"({"do":"story","day":"2026-03-09"})",
         R"({"error":"\"day\" isn't a day that is stored","line":1})"},
    });
    Replay replay;
    replay.answer(R"({"do":"life","life":)" + skips + "}", 1);
    // 8 March is a Sunday, the skips are on the Saturday before.
    EXPECT_EQ(replay.answer(R"({"do":"streak","date":1772971200})", 2), R"({"streak":0})");
    EXPECT_EQ(replay.answer(R"({"do":"streak","date":1772971200,"workdays":[2,3,4,5,6]})", 3),
              R"({"streak":1})");
}

TEST(LifeCommands, sayWhatIsWrongAndChangeNothing) {
    struct Case {
        const char *line, *reason;
    };
    const Case cases[] = {
        {R"({"do":"today","date":1})", R"(\"draws\" is missing)"},
        {R"({"do":"today","date":"2026-03-09","draws":[]})", R"(\"date\" is of the wrong type)"},
        {R"({"do":"today","date":1,"draws":[0.5]})", R"(\"draws\" is of the wrong type)"},
        {R"({"do":"record","record":{},"draws":[]})", R"(\"record\" is of the wrong type)"},
        {R"({"do":"recap","period":"year","date":1})", R"(\"period\" is of the wrong type)"},
        {R"({"do":"recaps","now":1,"seen":[]})", R"(\"announced\" is missing)"},
        {R"({"do":"markSeen","period":"week","date":1})", R"(\"now\" is missing)"},
        {R"({"do":"streak","date":1,"workdays":2})", R"(\"workdays\" is of the wrong type)"},
        {R"({"do":"story"})", R"(\"day\" is missing)"},
    };
    Replay replay;
    for (const auto& [line, reason] : cases) {
        EXPECT_EQ(replay.answer(line, 1), R"({"error":")" + std::string(reason) + R"(","line":1})") << line;
    }
    EXPECT_EQ(replay.answer(R"({"do":"streak","date":1})", 1), R"({"streak":0})");
    EXPECT_EQ(replay.answer(R"({"do":"summaries"})", 1), R"({"summaries":{}})");
}

} // namespace
} // namespace wumble::replay
