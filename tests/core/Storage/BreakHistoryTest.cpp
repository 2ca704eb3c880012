#include "WumbleCore/Storage/BreakHistory.h"
#include "WumbleCore/Foundation/JsonCoding.h"
#include "tests/support/Records.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

using test::absenceEnding;
using test::breakEnding;

std::string line(const BreakRecord& record) {
    return *JsonEncoder(DateForm::iso8601).encode(record).text() + "\n";
}

TEST(BreakHistory, isEmptyWithoutRecords) {
    for (const char* text : {"", "\n", "\n\n\r\n", "nonsense", "{}\n[]\nnull\n"}) {
        EXPECT_TRUE(readHistory(text).empty()) << text;
    }
}

TEST(BreakHistory, comesByStartWithTheLastLineOfAnId) {
    const auto early = breakEnding("2026-03-09T08:00:00Z");
    const auto late = breakEnding("2026-03-09T12:00:00Z");
    auto corrected = late;
    corrected.outcome = BreakOutcome::skipped;
    EXPECT_EQ(readHistory(line(late) + "\n" + line(early) + line(corrected)),
              (std::vector{early, corrected}));

    auto sameStart = breakEnding("2026-03-09T08:00:00Z");
    EXPECT_EQ(readHistory(line(sameStart) + line(early)), (std::vector{sameStart, early}));
    EXPECT_EQ(readHistory(line(early) + line(sameStart)), (std::vector{early, sameStart}));
}

TEST(BreakHistory, dropsOnlyLinesThatCantBeRead) {
    const auto good = breakEnding("2026-03-09T08:00:00Z");
    const auto text = line(good);
    const auto changed = [&](std::string_view from, std::string_view to) {
        std::string copy = text;
        return copy.replace(copy.find(from), from.size(), to);
    };
    struct Case {
        std::string line;
        bool isRead;
    };
    for (const auto& [damaged, isRead] : {
             Case{changed("\"short\"", "\"tiny\""), false},
             Case{changed("\"completed\"", "\"done\""), false},
             Case{changed("\"snoozes\":0,", ""), false},
             Case{changed("\"snoozes\":0", "\"snoozes\":null"), false},
             Case{changed("\"snoozes\":0", "\"snoozes\":0.5"), false},
             Case{changed("\"snoozes\":0", "\"snoozes\":1e30"), false},
             Case{changed("\"snoozes\":0", "\"snoozes\":true"), false},
             Case{changed("\"snoozes\":0", "\"snoozes\":[0]"), false},
             Case{changed("\"scheduledDuration\":45", "\"scheduledDuration\":1e999"), false},
             Case{changed("08:00:00Z", "08:00:00.5Z"), false},
             Case{changed("08:00:00Z", "08:00:00+00:00"), false},
             Case{changed("2026-03-09T08", "2026-02-30T08"), false},
             Case{changed("\"snoozes\":0", "\"snoozes\":0,\"honestlyRested\":1"), false},
             Case{text.substr(0, text.size() - 3), false},
             Case{text.substr(0, text.size() - 1) + " x\n", false},
             Case{changed("\"snoozes\":0", "\"snoozes\":2.0"), true},
             Case{changed("\"snoozes\":0", "\"snoozes\":\"no\",\"snoozes\":3e0"), true},
             Case{changed("\"snoozes\":0",
                          "\"snoozes\":0,\"honestlyRested\":null,\"new\":{\"snoozes\":[1e999]}"),
                  true},
             Case{"  " + changed(",", " ,\t"), true},
         }) {
        const auto other = breakEnding("2026-03-09T10:00:00Z");
        EXPECT_EQ(readHistory(damaged + "\n" + line(other)).size(), isRead ? 2U : 1U) << damaged;
    }
}

TEST(BreakHistory, passesOverALineTooLongToBeARecord) {
    const auto before = breakEnding("2026-03-09T08:00:00Z");
    const auto after = breakEnding("2026-03-09T10:00:00Z");
    auto huge = line(breakEnding("2026-03-09T09:00:00Z"));
    huge.insert(huge.size() - 2, ",\"note\":\"" + std::string(BreakHistoryReader::longestLine, 'x') + '"');
    const auto text = line(before) + huge + line(after);
    for (const auto size : {std::size_t{4096}, text.size()}) {
        BreakHistoryReader reader;
        for (std::size_t place = 0; place < text.size(); place += size) {
            reader.feed(std::string_view(text).substr(place, size));
        }
        EXPECT_EQ(reader.finish(), (std::vector{before, after})) << size;
    }
}

TEST(BreakHistory, readsTheSameInPiecesOfAnySize) {
    std::string text = "\n";
    for (int hour = 10; hour < 20; ++hour) {
        text += line(breakEnding("2026-03-09T" + std::to_string(hour) + ":00:00Z")) + "garbage\n";
    }
    text.pop_back();
    const auto whole = readHistory(text);
    EXPECT_EQ(whole.size(), 10);
    for (const std::size_t size : {1U, 2U, 3U, 50U, 163U, 164U, 165U, 5000U}) {
        BreakHistoryReader reader;
        for (std::size_t place = 0; place < text.size(); place += size) {
            reader.feed(std::string_view(text).substr(place, size));
        }
        EXPECT_EQ(reader.finish(), whole) << size;
    }
}

TEST(BreakRecord, earnsGrowthOnlyByRealRest) {
    struct Case {
        BreakRecord record;
        bool earns;
    };
    auto skipped = breakEnding("2026-03-09T08:00:00Z");
    skipped.outcome = BreakOutcome::skipped;
    auto endedEarly = skipped;
    endedEarly.outcome = BreakOutcome::endedEarly;
    auto vetoed = breakEnding("2026-03-09T08:00:00Z");
    vetoed.honestlyRested = false;
    auto confirmed = vetoed;
    confirmed.honestlyRested = true;
    const Case cases[] = {
        {breakEnding("2026-03-09T08:00:00Z"), true},
        {confirmed, true},
        {vetoed, false},
        {skipped, false},
        {endedEarly, false},
        {absenceEnding("2026-03-09T08:00:00Z", 299), false},
        {absenceEnding("2026-03-09T08:00:00Z", 300), true},
        {absenceEnding("2026-03-09T08:00:00Z", 14399), true},
        {absenceEnding("2026-03-09T08:00:00Z", 14400), false},
        {absenceEnding("2026-03-09T00:20:00Z", 1800), false},
        {absenceEnding("2026-03-09T00:20:00Z", 1200), true},
        {absenceEnding("2026-03-09T08:00:00Z", -600), false},
    };
    for (const auto& [record, earns] : cases) {
        EXPECT_EQ(record.earnsGrowth(Calendar()), earns)
            << enumText(record.kind) << " " << enumText(record.outcome) << " " << record.scheduledDuration;
    }
}

} // namespace
} // namespace wumble
