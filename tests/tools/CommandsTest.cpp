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
