#include "WumbleCore/Engine/BreakEngine.h"
#include "tools/wumble-replay/Replay.h"

#include <benchmark/benchmark.h>

namespace wumble {
namespace {

constexpr Date newYear{1767225600};
constexpr double year = 365 * 86400.0;

/// A year of one-second ticks in one line, as a recording asks for it. To reach: under 10 s, better 3.
void aYearOfSeconds(benchmark::State& state) {
    const std::string begin = R"({"do":"calendar","timeZone":"Europe/Berlin","firstWeekday":2})";
    const std::string engine = R"({"do":"new","now":1767225600,"settings":{"officeHoursEnabled":true}})";
    const std::string run = R"({"do":"run","every":1,"until":1798761600})";
    for (auto _ : state) {
        replay::Replay replay;
        replay.answer(begin, 1);
        replay.answer(engine, 2);
        benchmark::DoNotOptimize(replay.answer(run, 3));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(year));
}
BENCHMARK(aYearOfSeconds)->Unit(benchmark::kSecond)->Iterations(1);

/// A second of work in which nothing happens.
void aQuietTick(benchmark::State& state) {
    WumbleSettings settings;
    settings.workInterval = 1e12;
    settings.longBreaksEnabled = false;
    BreakEngine engine(settings, newYear, Calendar());
    Signals signals{.now = newYear};
    for (auto _ : state) {
        signals.now = signals.now + 1;
        benchmark::DoNotOptimize(engine.tick(signals));
    }
}
BENCHMARK(aQuietTick);

/// The same in a call with a long name, which holds the break.
void aHeldTick(benchmark::State& state) {
    BreakEngine engine(WumbleSettings{}, newYear, Calendar());
    Signals signals{.now = newYear, .smartActivity = activity::Meeting{"An application with a long name"}};
    for (auto _ : state) {
        signals.now = signals.now + 1;
        benchmark::DoNotOptimize(engine.tick(signals));
    }
}
BENCHMARK(aHeldTick);

} // namespace
} // namespace wumble
