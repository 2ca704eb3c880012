#include "WumbleCore/Words/Copy.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

TEST(Copy, greetsByTheDayKeyWhateverStandsInIt) {
    struct Case {
        const char *day, *title;
    };
    for (const auto& [day, title] :
         {Case{"2026-03-09", "Someone new is here"}, Case{"2026-03-10", "A fresh Wumble, just for today"},
          Case{"2026-03-11", "A little clump showed up"}, Case{"2026-03-12", "A new Wumble rolled in"},
          Case{"2026-03-14", "Today's Wumble says hi"}, Case{"", "A new Wumble rolled in"},
          Case{"é", "A fresh Wumble, just for today"}, Case{"🍡", "Someone new is here"},
          Case{"\xFF", "A fresh Wumble, just for today"}}) {
        EXPECT_EQ(Copy::arrival({.day = day}).title, title) << day;
    }
}

TEST(Copy, introducesThePetByItsFlavour) {
    EXPECT_EQ(Copy::arrival({.base = WumbleBase::blackSesame}).subtitle,
              "A black sesame clump arrived, speckled and nutty. Take a break to help it open its eyes.");
}

} // namespace
} // namespace wumble
