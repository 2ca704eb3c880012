#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Storage/BreakHistory.h"
#include "WumbleCore/Storage/DaySummary.h"
#include "WumbleCore/Storage/Storage.h"

#include <benchmark/benchmark.h>

namespace wumble {
namespace {

constexpr Date firstDay{1500000000};

std::vector<BreakRecord> recordsOfYears(std::size_t count) {
    std::vector<BreakRecord> records;
    for (std::size_t place = 0; place < count; ++place) {
        const Date start = firstDay + static_cast<double>(place) * 1245;
        records.push_back({.id = UUID::random(), .start = start, .end = start + 45, .scheduledDuration = 45});
    }
    return records;
}

std::string historyText(std::size_t lines) {
    std::string text;
    for (const auto& record : recordsOfYears(lines)) {
        text += *JsonEncoder(DateForm::iso8601).encode(record).text() + "\n";
    }
    return text;
}

/// What the start of the program waits for. To reach: under 150 ms for 100,000 lines.
void readingAHistory(benchmark::State& state) {
    const auto text = historyText(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(readHistory(text));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(readingAHistory)->Arg(100'000)->Unit(benchmark::kMillisecond);

void summingAHistoryUp(benchmark::State& state) {
    const auto records = recordsOfYears(static_cast<std::size_t>(state.range(0)));
    const auto berlin = Calendar::make("Europe/Berlin", "en_US").value();
    for (auto _ : state) {
        benchmark::DoNotOptimize(DaySummary::summaries(records, berlin));
    }
}
BENCHMARK(summingAHistoryUp)->Arg(100'000)->Unit(benchmark::kMillisecond);

void readingSettings(benchmark::State& state) {
    const auto text = *JsonEncoder(DateForm::iso8601).encode(WumbleSettings{}).text();
    for (auto _ : state) {
        benchmark::DoNotOptimize(WumbleSettings::decode(text));
    }
}
BENCHMARK(readingSettings)->Unit(benchmark::kMicrosecond);

/// Every 15 seconds of the program's life: written, flushed, renamed, and the folder flushed.
void savingASnapshot(benchmark::State& state) {
    const auto folder = std::filesystem::temp_directory_path() / "quietlark-benchmark";
    const Storage storage(folder);
    const auto snapshot = BreakEngine(WumbleSettings{}, firstDay, Calendar()).snapshot(firstDay);
    for (auto _ : state) {
        storage.save(snapshot);
    }
    std::filesystem::remove_all(folder);
}
BENCHMARK(savingASnapshot)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace wumble
