#include "WumbleCore/Foundation/JsonCoding.h"
#include "tests/support/EngineDriver.h"

namespace wumble {
namespace {

using test::at;
using test::EngineDriver;
using test::Told;

constexpr JsonEncoder encoder(DateForm::iso8601);
constexpr JsonDecoder decoder(DateForm::iso8601);

/// A new engine of the same settings, restored from the stored form so many seconds later.
EngineDriver reopened(const EngineDriver& closed, double later) {
    const auto stored = encoder.encode(closed.engine.snapshot(closed.now())).text().value();
    EngineDriver driver(closed.engine.settings(), closed.now() + later);
    driver.engine.restore(decoder.decode<EngineSnapshot>(*parseJson(stored).value).value(), driver.now());
    return driver;
}

const Phase working = phase::Working{};

TEST(EngineSnapshot, goesOnAfterAShortCloseAndCountsALongOneAsRest) {
    struct Case {
        double later, workElapsed, moveCarry;
        Counter snoozesThisBreak;
    };
    for (const auto& [later, workElapsed, moveCarry, snoozesThisBreak] :
         {Case{299, 800, 1200, 1}, Case{300, 0, 0, 0}, Case{-60, 800, 1200, 1}}) {
        EngineDriver driver;
        driver.run(1245 + 900);
        driver.snooze(100);
        auto again = reopened(driver, later);
        EXPECT_EQ(again.engine.workElapsed(), workElapsed) << later;
        EXPECT_EQ(again.engine.moveCarry(), moveCarry) << later;
        EXPECT_EQ(again.engine.snoozesThisBreak(), snoozesThisBreak) << later;
        EXPECT_EQ(again.engine.snoozesToday(), 1) << later;
        EXPECT_EQ(again.engine.nudgeTurn(), 2) << later;
        EXPECT_EQ(again.tick(), Told()) << later; // the time between is no sleep, and no nudge comes again
    }
}

TEST(EngineSnapshot, dropsYesterdaysCounts) {
    EngineDriver driver({.allowSkipInAdvance = true}, at("2026-03-09T22:59:00Z"));
    driver.skip();
    driver.snooze(100);
    const auto again = reopened(driver, 120);
    EXPECT_EQ(again.engine.workElapsed(), -100);
    EXPECT_EQ(again.engine.snoozesToday(), 0);
    EXPECT_EQ(again.engine.advanceSkipsToday(), 0);
    EXPECT_EQ(reopened(driver, 30).engine.advanceSkipsToday(), 1);
}

TEST(EngineSnapshot, keepsABreakOnScreenWhileItLastsOrIsWaitedFor) {
    EngineDriver driver({.holdUntilEndPressed = true});
    driver.run(1200);
    driver.run(15);
    auto again = reopened(driver, 10);
    EXPECT_EQ(again.engine.phase(), driver.engine.phase());
    EXPECT_EQ(again.run(19), Told());
    EXPECT_EQ(again.tick(), Told{"breakAwaitingEnd short 45"});
    auto hourLater = reopened(again, 3600);
    EXPECT_EQ(hourLater.engine.workElapsed(), 1200);
    EXPECT_EQ(hourLater.run(5), Told());
    EXPECT_EQ(hourLater.endBreak(), Told{"breakFinished short completed 3650 of 45"});
}

TEST(EngineSnapshot, countsABreakThatRanOutMeanwhileWithoutTellingOfIt) {
    for (const auto kind : {BreakKind::shortBreak, BreakKind::longBreak}) {
        EngineDriver driver;
        driver.run(1200);
        driver.engine.stop(driver.now());
        driver.startBreak(kind, 45);
        auto again = reopened(driver, 240);
        EXPECT_EQ(again.engine.phase(), working);
        EXPECT_EQ(again.engine.workElapsed(), 0);
        EXPECT_EQ(again.engine.moveCarry(), kind == BreakKind::shortBreak ? 1200 : 0);
        EXPECT_EQ(again.tick(), Told());
    }
}

TEST(EngineSnapshot, keepsAStopAndAPauseAsLongAsItRuns) {
    EngineDriver driver;
    driver.run(100);
    driver.pause(driver.now() + 1000);
    driver.startPreview(10); // a preview doesn't outlive the program
    EXPECT_EQ(reopened(driver, 999).engine.phase(), Phase(phase::Paused{pause::Manual{driver.now() + 1000}}));
    EXPECT_EQ(reopened(driver, 1000).engine.phase(), working);
    driver.forceSkip();
    driver.pause();
    EXPECT_EQ(reopened(driver, 1e6).engine.phase(), Phase(phase::Paused{pause::Manual{}}));
    driver.engine.stop(driver.now());
    EXPECT_EQ(reopened(driver, 1e6).engine.phase(), Phase(phase::Stopped{}));
    EXPECT_EQ(reopened(driver, 1e6).engine.workElapsed(), 0);
}

TEST(EngineSnapshot, readsOldFilesAndRefusesIncompleteOnes) {
    const std::string required =
        R"("savedAt":"2026-03-09T08:00:00Z","workElapsed":7,"snoozesThisBreak":1,"snoozesToday":2,)"
        R"("snoozeDay":"2026-03-08T23:00:00Z","stopped":false)";
    const auto read = [](const std::string& members) {
        return decoder.decode<EngineSnapshot>(*parseJson("{" + members + "}").value);
    };
    EXPECT_FALSE(read(required));
    EXPECT_FALSE(read(required + R"(,"manualPause":0)"));
    EXPECT_FALSE(read(required + R"(,"manualPause":false,"nudgeTurn":0.5)"));
    EXPECT_FALSE(read(required + R"(,"manualPause":false,"activeBreak":{"kind":"short"})"));
    EngineDriver driver;
    driver.engine.restore(read(required + R"(,"manualPause":false,"breaksInCycle":2,"hats":3)").value(),
                          driver.now());
    EXPECT_EQ(driver.engine.moveCarry(), 2400);
    EXPECT_EQ(driver.engine.snoozesToday(), 2);
    EXPECT_EQ(driver.engine.advanceSkipsToday(), 0);
    EXPECT_EQ(driver.engine.nudgeTurn(), 0);
    EXPECT_FALSE(driver.engine.moveRetried());
    EXPECT_FALSE(encoder.encode(driver.engine.snapshot(driver.now())).object()->contains("breaksInCycle"));
}

} // namespace
} // namespace wumble
