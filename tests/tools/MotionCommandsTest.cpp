#include "tools/wumble-replay/Replay.h"

#include <gtest/gtest.h>

namespace wumble::replay {
namespace {

TEST(MotionCommands, answerInTheFormOfTheRecordingsOrSayWhatIsWrong) {
    struct Case {
        const char* line;
        const char* answer;
    };
    const Case cases[] = {
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
    };
    Replay replay;
    for (const auto& [line, answer] : cases) {
        EXPECT_EQ(replay.answer(line, 1), answer) << line;
    }
}

} // namespace
} // namespace wumble::replay
