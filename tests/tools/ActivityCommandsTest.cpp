#include "tools/wumble-replay/Replay.h"

#include <gtest/gtest.h>

namespace wumble::replay {
namespace {

TEST(ActivityCommands, answerInTheFormOfTheRecordingsOrSayWhatIsWrong) {
    struct Case {
        const char* line;
        const char* answer;
    };
    const Case cases[] = {
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
    };
    Replay replay;
    for (const auto& [line, answer] : cases) {
        EXPECT_EQ(replay.answer(line, 1), answer) << line;
    }
}

} // namespace
} // namespace wumble::replay
