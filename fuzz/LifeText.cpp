#include "WumbleCore/Foundation/JsonCoding.h"
#include "WumbleCore/Life/Recap.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

using namespace wumble;

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

std::optional<WumbleLife> lifeFrom(std::string_view text) {
    const auto json = parseJson(text).value;
    return json ? JsonDecoder(DateForm::iso8601).decode<WumbleLife>(*json) : std::nullopt;
}

/// Whatever the file held, a day can be made, grow and be told.
void liveOn(WumbleLife life) {
    const Calendar calendar;
    const Date now{1773057600};
    const std::vector history{BreakRecord{.start = now, .end = now + 45, .scheduledDuration = 45}};
    const auto before = life.today(now, calendar);
    const auto after = life.record(history.front(), calendar);
    require(after.rests >= before.rests && after.traits == before.traits);
    require(after.story(history, calendar).size() <= history.size());
    static_cast<void>(after.revealDetail());
    static_cast<void>(after.revealAnnouncement());
    require(life.currentStreak(now, calendar) <= static_cast<Counter>(life.days.size()));
    const auto recap = Recap::containing(now, Recap::Period::month, life, history, calendar);
    require(recap.dates.size() == recap.wumbles.size() && recap.completed == 1);
    life.markRecapSeen(recap.previous(life, history, calendar), now, calendar);
    require(life.seenRecaps && life.seenRecaps->size() <= 2);
}

} // namespace

/// What was read can be written, and reading that gives the same again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto life = lifeFrom(std::string_view(reinterpret_cast<const char*>(data), size));
    if (life) {
        const auto written = JsonEncoder(DateForm::iso8601).encode(*life).text();
        require(written && lifeFrom(*written) == life);
        liveOn(*life);
    }
    return 0;
}
