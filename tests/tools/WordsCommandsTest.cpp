#include "tools/wumble-replay/Replay.h"

#include <gtest/gtest.h>

namespace wumble::replay {
namespace {

/// Carries out each line and compares the answers.
void expectAnswers(const std::vector<std::pair<std::string, std::string>>& exchanges) {
    Replay replay;
    std::size_t lineNumber = 0;
    for (const auto& [line, answer] : exchanges) {
        EXPECT_EQ(replay.answer(line, ++lineNumber), answer) << line;
    }
}

/// A life with one pet, which holds a heart.
const std::pair<std::string, std::string> life{
    R"({"do":"life","life":{"name":"Wumble","days":{"2026-03-13":{"day":"2026-03-13","base":"kuri","rests":6,"skips":0,"spriteVersion":3,"traits":{"accessory":"bow","cheeks":"blush","eyes":"dots","keepsake":"heart","mouth":"cat","personality":"shy"}}}}})",
    R"({"life":{"days":{"2026-03-13":{"base":"kuri","day":"2026-03-13","rests":6,"skips":0,"spriteVersion":3,"traits":{"accessory":"bow","cheeks":"blush","eyes":"dots","keepsake":"heart","mouth":"cat","personality":"shy"}}},"name":"Wumble"}})"};

/// Of a quick break, at noon on Friday in UTC unless the calendar says otherwise.
std::string words(const std::string& afterCall, const std::string& moments, const std::string& draws) {
    return R"({"do":"words","long":false,"date":1773403200,"day":"2026-03-13","afterCall":)" + afterCall +
           R"(,"moments":)" + moments + R"(,"draws":)" + draws + "}";
}

TEST(WordsCommands, wordsKeepsItsPickerFromLineToLine) {
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

TEST(WordsCommands, wordsGoesByTheCalendar) {
    expectAnswers({
        life,
        {R"({"do":"calendar","timeZone":"Asia/Tokyo","firstWeekday":2})", R"({"ok":true})"},
        {words("false", "true", "[2]"),
         R"({"drawsUsed":1,"line":"It's Friday. Wumble can feel it.","title":"Look across the room"})"},
    });
}

TEST(WordsCommands, wordsTellsWhatIsMissing) {
    expectAnswers({
        {words("false", "false", "[]"), R"({"error":"\"day\" isn't a day that is stored","line":1})"},
        life,
        {words("0", "false", "[]"), R"({"error":"\"afterCall\" is of the wrong type","line":3})"},
        {R"({"do":"words","long":true,"date":0,"day":"2026-03-13","afterCall":false,"moments":true})",
         R"({"error":"\"draws\" is missing","line":4})"},
        {words("false", "false", "[0,0]"),
         R"({"drawsUsed":2,"line":"Wumble's looking too.","title":"Look at something far away"})"},
    });
}

TEST(WordsCommands, formatPutsALengthIntoWords) {
    expectAnswers({
        {R"({"do":"format","seconds":3630})",
         R"({"clock":"1:00:30","duration":"1 hr","menuBar":"61m","waited":"1 hr"})"},
        {R"({"do":"format","seconds":59.5})",
         R"({"clock":"1:00","duration":"1 min","menuBar":"1:00","waited":"a moment"})"},
        {R"({"do":"format"})", R"({"error":"\"seconds\" is missing","line":3})"},
    });
}

} // namespace
} // namespace wumble::replay
