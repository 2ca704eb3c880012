#include "WumbleCore/Words/Format.h"

#include <gtest/gtest.h>

#include <limits>

namespace wumble::Format {
namespace {

struct Case {
    double seconds;
    const char* text;
};

TEST(Format, clockRoundsUp) {
    for (const auto& [seconds, text] :
         {Case{-3, "0:00"}, Case{0, "0:00"}, Case{0.1, "0:01"}, Case{59.2, "1:00"}, Case{65, "1:05"},
          Case{3599.5, "1:00:00"}, Case{3600, "1:00:00"}, Case{3661, "1:01:01"}}) {
        EXPECT_EQ(clock(seconds), text) << seconds;
    }
}

TEST(Format, menuBarCountsMinutesFromOneMinuteUp) {
    for (const auto& [seconds, text] :
         {Case{59.5, "1:00"}, Case{59, "0:59"}, Case{60, "1m"}, Case{61, "2m"}, Case{7200, "120m"}}) {
        EXPECT_EQ(menuBar(seconds), text) << seconds;
    }
}

TEST(Format, durationNeverLiesAboutOddSpans) {
    for (const auto& [seconds, text] :
         {Case{-1, "0 sec"}, Case{45, "45 sec"}, Case{59.4, "59 sec"}, Case{59.5, "1 min"},
          Case{61, "61 sec"}, Case{90, "90 sec"}, Case{119.4, "119 sec"}, Case{120, "2 min"},
          Case{179, "2 min"}, Case{3599, "59 min"}, Case{3600, "1 hr"}, Case{3630, "1 hr"},
          Case{3660, "1 hr 1 min"}, Case{7200, "2 hr"}}) {
        EXPECT_EQ(duration(seconds), text) << seconds;
    }
}

TEST(Format, waitedStartsWithAMoment) {
    for (const auto& [seconds, text] : {Case{-1, "a moment"}, Case{59.9, "a moment"}, Case{60, "1 min"},
                                        Case{119, "1 min"}, Case{3700, "1 hr 1 min"}}) {
        EXPECT_EQ(waited(seconds), text) << seconds;
    }
}

TEST(Format, survivesWhatIsNoLength) {
    for (const double odd :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity(), 1e300, -1e300}) {
        for (const auto& text : {clock(odd), menuBar(odd), duration(odd), waited(odd)}) {
            EXPECT_FALSE(text.empty());
        }
    }
}

} // namespace
} // namespace wumble::Format
