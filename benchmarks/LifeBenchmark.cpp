#include "WumbleCore/Life/Recap.h"

#include <benchmark/benchmark.h>

namespace wumble {
namespace {

constexpr Date firstDay{1500000000};
constexpr double secondsPerDay = 86400;

WumbleLife lifeOfDays(int count, const Calendar& calendar) {
    WumbleLife life;
    for (int day = 0; day < count; ++day) {
        life.today(firstDay + day * secondsPerDay, calendar);
    }
    return life;
}

/// What the first look at a new day waits for. To reach: under 5 ms after ten years of days.
void makingADay(benchmark::State& state) {
    const auto berlin = Calendar::make("Europe/Berlin", "en_US").value();
    const auto count = static_cast<int>(state.range(0));
    auto life = lifeOfDays(count, berlin);
    const Date date = firstDay + count * secondsPerDay;
    for (auto _ : state) {
        const auto made = life.today(date, berlin);
        benchmark::DoNotOptimize(made);
        life.days.erase(made.day);
    }
}
BENCHMARK(makingADay)->Arg(0)->Arg(6)->Arg(3653)->Unit(benchmark::kMicrosecond);

/// Asked once a minute all day long, mostly in vain.
void lookingForARecap(benchmark::State& state) {
    const auto berlin = Calendar::make("Europe/Berlin", "en_US").value();
    const auto life = lifeOfDays(3653, berlin);
    const Date now = firstDay + 3653 * secondsPerDay;
    const auto known = Recap::justFinishedKeys(now, berlin);
    const std::vector<BreakRecord> history(100'000, {.start = firstDay, .end = firstDay + 45});
    for (auto _ : state) {
        benchmark::DoNotOptimize(Recap::dueAnnouncements(now, known, life, history, berlin));
    }
}
BENCHMARK(lookingForARecap)->Unit(benchmark::kMicrosecond);

void countingAStreakOfYears(benchmark::State& state) {
    const auto berlin = Calendar::make("Europe/Berlin", "en_US").value();
    auto life = lifeOfDays(3653, berlin);
    for (auto& [key, day] : life.days) {
        day.rests = 1;
    }
    const Date now = firstDay + 3653 * secondsPerDay;
    for (auto _ : state) {
        benchmark::DoNotOptimize(life.currentStreak(now, berlin));
    }
}
BENCHMARK(countingAStreakOfYears)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace wumble
