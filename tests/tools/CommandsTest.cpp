#include "tools/wumble-replay/Replay.h"

#include <gtest/gtest.h>

namespace wumble::replay {
namespace {

struct Exchange {
    std::string line, answer;
};

/// Each of them stands in line 1.
void expectAnswers(const std::vector<Exchange>& exchanges) {
    Replay replay;
    for (const auto& [line, answer] : exchanges) {
        EXPECT_EQ(replay.answer(line, 1), answer) << line;
    }
}

TEST(Commands, ofActivitiesAnswerOrSayWhatIsWrong) {
    expectAnswers({
        {R"({"do":"game","bundleID":"a.b","categories":[" "],"paths":["/x/steamapps/common/y","/usr/bin/y"]})",
         R"({"isGame":true,"sources":["steam",null]})"},
        {R"({"do":"game","categories":[],"paths":[]})", R"({"isGame":false,"sources":[]})"},
        {R"({"do":"displayName","name":"Game.EXE"})", R"({"name":"Game"})"},
        {R"({"do":"displayName","name":null})", R"({"name":"a game"})"},
        {R"({"do":"fillsDisplay","rect":[0,32,1920,1050],"displays":[{"frame":[0,0,1920,1080],"topInset":30}]})",
         R"({"fills":true})"},
        {R"({"do":"fillsDisplay","rect":[0,0,9,9],"displays":[]})", R"({"fills":false})"},
        {R"({"do":"playback","name":"Apple TV"})", R"({"isPlayback":true})"},
        {R"({"do":"playback"})", R"({"isPlayback":false})"},
        {R"({"do":"appBundle","path":"/opt/A.app/B Helper.app/c"})",
         R"({"appPaths":["/opt/A.app","/opt/A.app/B Helper.app"],"outermost":"/opt/A.app","product":"A"})"},
        {R"({"do":"appBundle","path":"/"})", R"({"appPaths":[]})"},
        {R"({"do":"capturers","line":"{\"eventMessage\":\"Active activity attributions changed to [\\\"scr:com.openai.chat.x\\\",\\\"scr:com.apple.RemoteDesktopAgent\\\"]\"}"})",
         R"({"capturers":["com.openai.chat.x","com.apple.RemoteDesktopAgent"],"kinds":["agent","remote"],"onlyRemote":true})"},
        {R"({"do":"capturers","line":"{\"eventMessage\":\"Active activity attributions changed to []\"}"})",
         R"({"capturers":[],"kinds":[],"onlyRemote":false})"},
        {R"({"do":"capturers","line":"nothing"})", R"({"kinds":[],"onlyRemote":false})"},
        {R"({"do":"game","bundleID":"a","categories":[]})", R"({"error":"\"paths\" is missing","line":1})"},
        {R"({"do":"game","bundleID":7,"categories":[],"paths":[]})",
         R"({"error":"\"bundleID\" is of the wrong type","line":1})"},
        {R"({"do":"fillsDisplay","rect":[0,0,1],"displays":[]})",
         R"({"error":"\"rect\" holds something that is no [x,y,w,h]","line":1})"},
        {R"({"do":"fillsDisplay","rect":[0,0,1,1],"displays":[{"frame":[],"topInset":0}]})",
         R"({"error":"\"displays\" holds something that is no [x,y,w,h]","line":1})"},
        {R"({"do":"fillsDisplay","rect":[0,0,1,1],"displays":[{"frame":[0,0,1,1]}]})",
         R"({"error":"\"displays\" is of the wrong type","line":1})"},
        {R"({"do":"capturers","line":{}})", R"({"error":"\"line\" is of the wrong type","line":1})"},
    });
}

TEST(Commands, ofMotionsAnswerOrSayWhatIsWrong) {
    expectAnswers({
        {R"({"do":"svg","path":"M1 1h2q1 1 2 0c0 1 1 1 1.5 0z"})",
         R"({"elements":[["M",1,1],["L",3,1],["Q",4,2,5,1],["C",5,2,6,2,6.5,1],["Z"]]})"},
        {R"({"do":"svg","path":""})", R"({"elements":[]})"},
        {R"({"do":"jiggle","preset":"stiff","history":[[0,0],[1,1],[0,0]]})",
         R"({"memory":0,"samples":0,"x":0,"y":0})"},
        {R"({"do":"jiggle","preset":"wumble","history":[]})",
         R"({"memory":0.45472840883398674,"samples":29,"x":0,"y":0})"},
        {R"({"do":"notePose","t":0,"entrance":"slap","covering":true,"leaving":false,"reduceMotion":false})",
         R"({"air":6,"drop":-12,"opacity":1,"scale":1.04,"shut":0,"squash":1,"tilt":0,"wumble":0.8})"},
        {R"({"do":"notePose","t":1,"entrance":"hang","covering":true,"leaving":true,"reduceMotion":false})",
         R"({"air":6,"drop":-12,"opacity":0,"scale":0.9,"shut":0,"squash":1,"tilt":-1.5,"wumble":1})"},
        {R"({"do":"choreography","t":0})", R"({"blinkShut":0,"breathFill":0.4,"drop":-60,"tilt":0})"},
        {R"({"do":"svg"})", R"({"error":"\"path\" is missing","line":1})"},
        {R"({"do":"jiggle","history":[]})", R"({"error":"\"preset\" is missing","line":1})"},
        {R"({"do":"jiggle","preset":"soft","history":[]})",
         R"({"error":"\"preset\" is no preset","line":1})"},
        {R"({"do":"jiggle","preset":"wumble","history":[[1,2],[3]]})",
         R"({"error":"\"history\" holds something that is no [x,y]","line":1})"},
        {R"({"do":"notePose","t":0,"entrance":"spin","covering":true,"leaving":false,"reduceMotion":false})",
         R"({"error":"\"entrance\" is of the wrong type","line":1})"},
    });
}

TEST(Commands, ofLooksAndLengthsAnswerOrSayWhatIsWrong) {
    expectAnswers({
        {R"({"do":"seeded","seed":"days2026-03-09traits"})",
         R"({"traits":{"accessory":"straw-hat","cheeks":"blush","eyes":"almond","keepsake":"crane","mouth":"tiny-o","personality":"shy"}})"},
        {R"({"do":"seeded"})", R"({"error":"\"seed\" is missing","line":1})"},
        {R"({"do":"seeded","seed":9})", R"({"error":"\"seed\" is of the wrong type","line":1})"},
        {R"({"do":"format","seconds":3630})",
         R"({"clock":"1:00:30","duration":"1 hr","menuBar":"61m","waited":"1 hr"})"},
        {R"({"do":"format","seconds":59.5})",
         R"({"clock":"1:00","duration":"1 min","menuBar":"1:00","waited":"a moment"})"},
        {R"({"do":"format"})", R"({"error":"\"seconds\" is missing","line":1})"},
    });
}

/// A life with one pet, which holds a heart.
const Exchange life{
    R"({"do":"life","life":{"name":"Wumble","days":{"2026-03-13":{"day":"2026-03-13","base":"kuri","rests":6,"skips":0,"spriteVersion":3,"traits":{"accessory":"bow","cheeks":"blush","eyes":"dots","keepsake":"heart","mouth":"cat","personality":"shy"}}}}})",
    R"({"life":{"days":{"2026-03-13":{"base":"kuri","day":"2026-03-13","rests":6,"skips":0,"spriteVersion":3,"traits":{"accessory":"bow","cheeks":"blush","eyes":"dots","keepsake":"heart","mouth":"cat","personality":"shy"}}},"name":"Wumble"}})"};

/// Of a quick break, at noon on Friday in UTC unless the calendar says otherwise.
std::string words(const std::string& afterCall, const std::string& moments, const std::string& draws) {
    return R"({"do":"words","long":false,"date":1773403200,"day":"2026-03-13","afterCall":)" + afterCall +
           R"(,"moments":)" + moments + R"(,"draws":)" + draws + "}";
}

TEST(WordsCommands, keepTheirPickerFromLineToLine) {
    const std::string first =
        R"({"drawsUsed":2,"line":"Wumble's looking far away, its plush heart tucked in close.","title":"Let your eyes go far"})";
    expectAnswers({
        life,
        {words("false", "false", "[1,3,9]"), first},
        {words("true", "true", "[0]"),
         R"({"drawsUsed":1,"line":"Call's over. Wumble hugged its plush heart the whole time.","title":"Look at something far away"})"},
        {words("true", "true", "[]"),
         R"({"drawsUsed":1,"line":"It's Friday. Wumble can feel it.","title":"Look out a window"})"},
        {words("true", "true", "[2,10]"),
         R"({"drawsUsed":2,"line":"Even the stickiest problem looks smaller from far away.","title":"Look at something far away"})"},
        {R"({"do":"newPicker"})", R"({"ok":true})"},
        {words("false", "false", "[1,3]"), first},
    });
}

TEST(WordsCommands, goByTheCalendar) {
    expectAnswers({
        life,
        {R"({"do":"calendar","timeZone":"Asia/Tokyo","firstWeekday":2})", R"({"ok":true})"},
        {words("false", "true", "[2]"),
         R"({"drawsUsed":1,"line":"It's Friday. Wumble can feel it.","title":"Look across the room"})"},
    });
}

TEST(WordsCommands, tellWhatIsMissing) {
    expectAnswers({
        {words("false", "false", "[]"), R"({"error":"\"day\" isn't a day that is stored","line":1})"},
        life,
        {words("0", "false", "[]"), R"({"error":"\"afterCall\" is of the wrong type","line":1})"},
        {R"({"do":"words","long":true,"date":0,"day":"2026-03-13","afterCall":false,"moments":true})",
         R"({"error":"\"draws\" is missing","line":1})"},
        {words("false", "false", "[0,0]"),
         R"({"drawsUsed":2,"line":"Wumble's looking too.","title":"Look at something far away"})"},
    });
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
    const Exchange cases[] = {
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
