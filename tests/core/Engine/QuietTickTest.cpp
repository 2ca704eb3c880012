#include "tests/support/EngineDriver.h"

#include <cstdlib>

namespace {

std::size_t allocations = 0;

} // namespace

// A sanitizer brings its own allocator, and only one C library has a second name for its own: elsewhere nothing
// is counted and the test is skipped.
#ifdef __has_feature
#if __has_feature(address_sanitizer)
#define __SANITIZE_ADDRESS__ 1
#endif
#endif
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#define COUNTS_ALLOCATIONS true
// NOLINTNEXTLINE(bugprone-reserved-identifier): the only way to the allocator below this one
extern "C" void* __libc_malloc(std::size_t size);

extern "C" void* malloc(std::size_t size) noexcept {
    ++allocations;
    return __libc_malloc(size);
}
#else
#define COUNTS_ALLOCATIONS false
#endif

namespace wumble {
namespace {

using test::at;

/// Ticks second by second with what `change` makes of the signals, and tells how often a tick without events
/// took memory.
template <class Change>
std::size_t allocationsInQuietTicks(BreakEngine engine, Date start, double seconds, Change change) {
    Signals signals{.now = start};
    std::size_t count = 0;
    for (double second = 0; second < seconds; ++second) {
        signals.now = start + second;
        change(signals, second);
        const auto before = allocations;
        const auto events = engine.tick(signals);
        count += events.empty() ? allocations - before : 0;
    }
    return count;
}

TEST(QuietTick, takesNoMemory) {
#if !COUNTS_ALLOCATIONS
    GTEST_SKIP() << "allocations can't be counted here";
#endif
    const auto before = allocations;
    ASSERT_NE(std::make_unique<Signals>(), nullptr);
    ASSERT_GT(allocations, before) << "nothing is counted";

    // Across midnight and the hour that the night of the 29th leaves out, until noon.
    const Date evening = at("2026-03-28T17:00:00Z");
    constexpr double untilNoon = 17 * 3600;
    const BreakEngine engine({.headsUp = HeadsUpMode::all, .nudgesBetween = 7}, evening,
                             test::calendarIn("Europe/Berlin"));
    const std::string longName(200, 'W');

    const auto heldByAGame = [&](Signals& signals, double second) {
        if (second == 60) {
            signals.smartActivity = activity::Game{longName};
            signals.liveShare = activity::ScreenSharing{longName};
        }
    };
    EXPECT_EQ(allocationsInQuietTicks(engine, evening, untilNoon, heldByAGame), 0U);

    const auto busy = [&](Signals& signals, double second) {
        const auto minute = static_cast<long>(second) / 60;
        signals.idleSeconds = minute % 97 < 3 ? 60 : 0;
        signals.secondsSinceKeyDown = minute % 5 == 0 ? 0 : 100;
        signals.withinOfficeHours = minute % 400 < 380;
        signals.screenLocked = minute % 211 < 9;
    };
    EXPECT_EQ(allocationsInQuietTicks(engine, evening, untilNoon, busy), 0U);
}

} // namespace
} // namespace wumble
