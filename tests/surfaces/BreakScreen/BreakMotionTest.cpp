#include "Quietlark/Surfaces/BreakScreen/BreakEntrance.h"
#include "Quietlark/Surfaces/BreakScreen/BreakStage.h"
#include "Quietlark/Surfaces/BreakScreen/ConfettiBurst.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

using wumble::Date;

constexpr Date shown{1000};
constexpr double close = 1e-4;

EntrancePose comingAt(const BreakPart& part, double t, bool reduces = false) {
    return entrancePose(part, {.shownAt = shown}, shown + t, reduces);
}

TEST(BreakEntrance, theGroundThePetAndTheWordsComeOneAfterTheOther) {
    EXPECT_EQ(comingAt(part::Ground{}, 0).opacity, 0);
    EXPECT_EQ(comingAt(part::Ground{}, 0.6).opacity, 1);
    EXPECT_EQ(comingAt(part::Wumble{}, 0.3), (EntrancePose{.opacity = 0, .scale = 0.8}));
    EXPECT_NEAR(comingAt(part::Wumble{}, 0.325).opacity, 0.5, close);
    EXPECT_EQ(comingAt(part::Wumble{}, 0.36).opacity, 1);
    EXPECT_GT(comingAt(part::Wumble{}, 0.55).scale, 1.01) << "glad to be there";
    for (const int order : {0, 1, 4}) {
        const double delay = 0.33 + 0.07 * order;
        EXPECT_NEAR(comingAt(part::Words{order}, delay).opacity, 0, close);
        EXPECT_NEAR(comingAt(part::Words{order}, delay).drop, 8, close);
        EXPECT_EQ(comingAt(part::Words{order}, delay - 0.01).opacity, 0);
        EXPECT_EQ(comingAt(part::Words{order}, delay + 0.4001), EntrancePose{});
    }
}

TEST(BreakEntrance, withReducedMotionThingsOnlyFadeAndNothingWaits) {
    for (const int order : {0, 4}) {
        const EntrancePose half = comingAt(part::Words{order}, 0.07 + 0.1, true);
        EXPECT_NEAR(half.opacity, 0.802, 0.01);
        EXPECT_EQ(half.drop, 0);
    }
    EXPECT_EQ(comingAt(part::Wumble{}, 0.1, true).scale, 1);
    EXPECT_EQ(comingAt(part::Wumble{}, 0.121, true).opacity, 1);
}

TEST(BreakEntrance, theExitEndsBeforeTheWindowsGo) {
    const auto leavingAt = [](const BreakPart& part, double l) {
        return entrancePose(part, {.shownAt = shown, .leftAt = shown + 60}, shown + 60 + l, false).opacity;
    };
    EXPECT_EQ(leavingAt(part::Ground{}, 0.07), 1) << "the ground stays a moment longer";
    EXPECT_EQ(leavingAt(part::Wumble{}, 0), 1);
    EXPECT_EQ(leavingAt(part::Wumble{}, 0.2001), 0);
    EXPECT_EQ(leavingAt(part::Words{2}, 0.2001), 0);
    EXPECT_EQ(leavingAt(part::Ground{}, exitLength + 1e-6), 0);
}

TEST(BreakEntrance, aScreenLeftInTheMiddleOfItsEntranceDoesNotBrighten) {
    const BreakTimes times{.shownAt = shown, .leftAt = shown + 0.2};
    double before = 1;
    for (double t = 0.35; t < 0.6; t += 0.01) {
        const double opacity = entrancePose(part::Ground{}, times, shown + t, false).opacity;
        EXPECT_LE(opacity, before);
        before = opacity;
    }
    EXPECT_EQ(before, 0);
}

TEST(BreakEntrance, everythingKnowsWhenItStandsStill) {
    const BreakTimes coming{.shownAt = shown};
    EXPECT_EQ(movingUntil(part::Ground{}, coming, false), shown + 0.6);
    EXPECT_EQ(movingUntil(part::Words{2}, coming, false), shown + (0.33 + 0.14) + 0.6);
    EXPECT_EQ(movingUntil(part::Words{2}, coming, true), shown + 0.07 + 0.6);
    EXPECT_EQ(movingUntil(part::Wumble{}, {.shownAt = shown, .leftAt = shown + 9}, false), shown + 9 + 0.37);
    EXPECT_LT(movingUntil(part::Ground{}, {}, false), Date{0});
}

TEST(BreakEntrance, aClockThatIsPutBackNeverLeavesAnEmptyScreen) {
    for (const BreakPart& part :
         {BreakPart(part::Ground{}), BreakPart(part::Wumble{}), BreakPart(part::Words{3})}) {
        EXPECT_EQ(comingAt(part, -3600), EntrancePose{});
    }
    const Reveal reveal{.startedAt = shown, .grew = true};
    EXPECT_TRUE(reveal.beats(shown - 60).popped && reveal.beats(shown - 60).tagged);
    EXPECT_EQ(reveal.landed(shown - 60), 1);
    EXPECT_EQ(reveal.petScale(shown - 60), 1);
}

TEST(BreakStage, isLeftOnce) {
    BreakStage stage;
    stage.leave(BreakScreenPhase(screen::Resting{}), shown);
    stage.leave(BreakScreenPhase(screen::PreviewDone{}), shown + 1);
    EXPECT_EQ(stage.leftAt.value(), shown);
    EXPECT_EQ(stage.lastPhase, BreakScreenPhase(screen::Resting{}));
}

TEST(Reveal, aPetThatGrewCrouchesPopsAndIsTagged) {
    const Reveal reveal{.startedAt = shown, .grew = true};
    const auto at = [&](double t) { return reveal.beats(shown + t); };
    EXPECT_TRUE(at(0).crouched);
    EXPECT_FALSE(at(0.44).popped);
    EXPECT_TRUE(at(0.4501).popped);
    EXPECT_FALSE(at(0.58).tagged);
    EXPECT_TRUE(at(0.5901).tagged);
    EXPECT_EQ(at(0.44).burst, std::nullopt);
    EXPECT_EQ(at(0.46).burst, reveal.poppedAt());
    EXPECT_EQ(at(2.66).burst, std::nullopt) << "2.2 seconds later";
    EXPECT_NEAR(reveal.petScale(shown + 0.44), 0.92, 0.002);
    EXPECT_GT(reveal.petScale(shown + 0.68), 1.01);
    EXPECT_NEAR(reveal.petScale(shown + 3), 1, 0.001);
}

TEST(Reveal, withNothingNewThereIsAShortPauseAndNoPaper) {
    const Reveal plain{.startedAt = shown};
    EXPECT_FALSE(plain.beats(shown + 0.1).popped);
    EXPECT_EQ(plain.beats(shown + 0.16), (RevealBeats{.token = plain.token, .popped = true}));
    EXPECT_EQ(plain.petScale(shown + 0.1), 1);
    const Reveal week{.startedAt = shown, .milestone = true};
    EXPECT_TRUE(week.beats(shown + 0.16).burst);
}

TEST(Reveal, withReducedMotionAllOfItIsThereAtOnce) {
    const Reveal still{.startedAt = shown, .grew = true, .milestone = true, .still = true};
    EXPECT_EQ(still.beats(shown), (RevealBeats{.token = still.token, .popped = true, .tagged = true}));
    EXPECT_EQ(still.petScale(shown), 1);
    EXPECT_EQ(still.landed(shown), 1);
    EXPECT_EQ(still.movingUntil(), shown);
}

TEST(Reveal, theLastThingOfADayAndTheFirstOfAFullWeekAreMilestones) {
    const auto day = [](wumble::Counter rests) { return wumble::WumbleDay{.rests = rests}; };
    struct Case {
        wumble::Counter rests;
        bool announces;
        wumble::Counter streak;
        bool expected;
    };
    for (const Case& row : std::vector<Case>{{6, true, 1, true},
                                             {6, false, 1, false},
                                             {8, false, 7, false},
                                             {1, true, 7, true},
                                             {1, false, 14, true},
                                             {2, true, 7, false},
                                             {1, true, 6, false},
                                             {1, true, 8, false},
                                             {1, true, 0, false}}) {
        const auto announcement = row.announces ? std::optional<std::string>("New!") : std::nullopt;
        EXPECT_EQ(isMilestone(day(row.rests), announcement, row.streak), row.expected)
            << row.rests << " " << row.streak;
    }
    EXPECT_FALSE(revealGrew(day(0), "New!"));
    EXPECT_TRUE(revealGrew(day(1), "New!"));
    EXPECT_FALSE(revealGrew(day(1), std::nullopt));
}

void expectPiece(const ConfettiPiece& piece, const ConfettiPiece& expected) {
    EXPECT_NEAR(piece.angle, expected.angle, 1e-5);
    EXPECT_NEAR(piece.speed, expected.speed, 1e-5);
    EXPECT_NEAR(piece.spin, expected.spin, 1e-5);
    EXPECT_NEAR(piece.turn, expected.turn, 1e-5);
    EXPECT_NEAR(piece.delay, expected.delay, 1e-5);
    EXPECT_EQ(piece.kind, expected.kind);
    EXPECT_EQ(piece.color, expected.color);
    EXPECT_NEAR(piece.size, expected.size, 1e-5);
}

// The numbers were worked out by a program of their own.
TEST(ConfettiBurst, isThrownTheSameWayEveryTime) {
    using Kind = ConfettiPiece::Kind;
    const auto big = ConfettiBurst::pieces(true);
    ASSERT_EQ(big.size(), 36u);
    expectPiece(big[0], {0.052638, 579.768142, 1.819963, 2.312179, 0.026007, Kind::strip, 0, 6.575689});
    expectPiece(big[17], {3.266608, 413.914419, 1.052911, 0.02115, 0.004643, Kind::disc, 2, 6.28471});
    expectPiece(big[35], {6.145314, 410.085933, 0.389948, 0.826517, 0.036432, Kind::curl, 0, 5.161298});
    const auto small = ConfettiBurst::pieces(false);
    ASSERT_EQ(small.size(), 20u);
    expectPiece(small[0], {0.303337, 1035.929967, 1.819963, 2.312179, 0.026007, Kind::strip, 0, 6.575689});
    expectPiece(small[7], {3.486763, 844.929569, 1.992318, 1.912106, 0.093624, Kind::curl, 1, 8.912189});
    expectPiece(small[19], {4.317247, 425.555439, -3.29256, 0.326865, 0.05788, Kind::curl, 2, 5.102804});
}

TEST(ConfettiBurst, paperFliesSlowsFallsAndFades) {
    const QRectF area(0, 0, 1280, 560);
    struct Case {
        bool big;
        std::size_t place;
        double t;
        QPointF at;
        double angle;
        double opacity;
    };
    for (const Case& row : std::vector<Case>{{true, 0, 0.5, {781.2281, 278.588}, 3.17483, 1},
                                             {false, 19, 0.9, {592.2668, 365.7784}, -2.44587, 1},
                                             {false, 1, 0.5, {431.4706, 503.1858}, 3.01306, 0.43363},
                                             {false, 12, 1.5, {819.136, 470.5135}, 1.53848, 0.77778},
                                             {false, 11, 1.5, {497.8816, 490.9333}, -1.47762, 0.5358},
                                             {false, 0, 0.9, {930.1005, 575.9482}, 3.90281, 0}}) {
        const auto flake =
            ConfettiBurst::flake(ConfettiBurst::pieces(row.big)[row.place], row.big, row.t, area);
        EXPECT_NEAR(flake.place.x(), row.at.x(), 1e-3);
        EXPECT_NEAR(flake.place.y(), row.at.y(), 1e-3);
        EXPECT_NEAR(flake.angle, row.angle, 1e-4);
        EXPECT_NEAR(flake.opacity, row.opacity, 1e-4);
    }
}

TEST(ConfettiBurst, isOnlySeenInItsTimeAndItsPlace) {
    const QRectF area(0, 0, 1280, 560);
    for (const bool big : {false, true}) {
        const QRectF reach = ConfettiBurst::reach(big, area);
        for (const ConfettiPiece& piece : ConfettiBurst::pieces(big)) {
            EXPECT_EQ(ConfettiBurst::flake(piece, big, piece.delay, area).opacity, 0);
            EXPECT_EQ(ConfettiBurst::flake(piece, big, 2.2, area).opacity, 0);
            for (double t = 0; t < 2.2; t += 0.05) {
                const auto flake = ConfettiBurst::flake(piece, big, t, area);
                EXPECT_TRUE(flake.opacity == 0 || reach.contains(flake.place));
                const bool isByTheButton = std::abs(flake.place.x() - 640) < 230 && flake.place.y() > 524;
                EXPECT_TRUE(flake.opacity == 0 || !isByTheButton);
            }
        }
    }
}

} // namespace
} // namespace quietlark
