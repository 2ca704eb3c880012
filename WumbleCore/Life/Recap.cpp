#include "WumbleCore/Life/Recap.h"
#include "WumbleCore/Life/DayKey.h"
#include "WumbleCore/Storage/DaySummary.h"

#include <algorithm>

namespace wumble {

namespace {

/// Seconds. How far beyond an edge the neighbouring period is looked for, so that no change of clocks can
/// lead back into the same one.
constexpr double clearOfTheEdge = 3600;

constexpr std::array periods{Recap::Period::week, Recap::Period::month};

Recap emptyRecap(Date date, Recap::Period period, const Calendar& calendar) {
    const bool isWeek = period == Recap::Period::week;
    const auto [start, end] = isWeek ? calendar.weekInterval(date) : calendar.monthInterval(date);
    const auto firstDay = DayKey::string(start, calendar);
    return {.period = period,
            .start = start,
            .end = end,
            .key = isWeek ? "week-" + firstDay : "month-" + DayKey::month(firstDay)};
}

/// Every period has just one before it, which the key and the pets are asked for without the history.
Recap justFinished(Date now, Recap::Period period, const WumbleLife& life, const Calendar& calendar) {
    return Recap::containing(now, period, life, {}, calendar).previous(life, {}, calendar);
}

void addDays(Recap& recap, const WumbleLife& life, const Calendar& calendar) {
    for (CivilDay day = calendar.day(recap.start); calendar.startOfDay(day) < recap.end;
         day += std::chrono::days{1}) {
        if (calendar.hasDay(day)) {
            const auto* pet = life.day(day);
            recap.dates.push_back(calendar.startOfDay(day));
            recap.wumbles.push_back(pet != nullptr ? std::optional(*pet) : std::nullopt);
        }
    }
}

void addBreaks(Recap& recap, std::span<const BreakRecord> history, const Calendar& calendar) {
    Recap::Keys days;
    for (const Date date : recap.dates) {
        days.insert(DayKey::string(date, calendar));
    }
    for (const auto& [day, summary] : DaySummary::summaries(history, calendar)) {
        if (days.contains(day)) {
            recap.completed += summary.completed;
            recap.skipped += summary.skipped;
            recap.natural += summary.natural;
            recap.awayTime += summary.awayTime;
            recap.restTime += summary.restTime;
        }
    }
}

} // namespace

std::vector<WumbleDay> Recap::presentWumbles() const {
    std::vector<WumbleDay> present;
    for (const auto& pet : wumbles) {
        if (pet) {
            present.push_back(*pet);
        }
    }
    return present;
}

Counter Recap::fullyRevealed() const {
    return std::ranges::count_if(wumbles, [](const auto& pet) { return pet && pet->isFullyRevealed(); });
}

bool Recap::isEmpty() const {
    return std::ranges::none_of(wumbles, [](const auto& pet) { return pet.has_value(); });
}

std::optional<double> Recap::completionRate() const {
    const Counter asked = completed + skipped;
    if (asked == 0) {
        return std::nullopt;
    }
    return static_cast<double>(completed) / static_cast<double>(asked);
}

Recap Recap::containing(Date date, Period period, const WumbleLife& life,
                        std::span<const BreakRecord> history, const Calendar& calendar) {
    Recap recap = emptyRecap(date, period, calendar);
    addDays(recap, life, calendar);
    addBreaks(recap, history, calendar);
    return recap;
}

Recap Recap::previous(const WumbleLife& life, std::span<const BreakRecord> history,
                      const Calendar& calendar) const {
    return containing(start - clearOfTheEdge, period, life, history, calendar);
}

Recap Recap::next(const WumbleLife& life, std::span<const BreakRecord> history,
                  const Calendar& calendar) const {
    return containing(end + clearOfTheEdge, period, life, history, calendar);
}

std::vector<Recap> Recap::dueAnnouncements(Date now, const Keys& announced, const WumbleLife& life,
                                           std::span<const BreakRecord> history, const Calendar& calendar) {
    std::vector<Recap> due;
    for (const Period period : periods) {
        const auto finished = justFinished(now, period, life, calendar);
        if (!finished.isEmpty() && !announced.contains(finished.key)) {
            due.push_back(containing(finished.start, period, life, history, calendar));
        }
    }
    return due;
}

std::optional<Recap> Recap::unseenFinished(Date now, const Keys& seen, const WumbleLife& life,
                                           std::span<const BreakRecord> history, const Calendar& calendar) {
    auto unseen = dueAnnouncements(now, seen, life, history, calendar);
    return unseen.empty() ? std::nullopt : std::optional(std::move(unseen.back()));
}

Recap::Keys Recap::justFinishedKeys(Date now, const Calendar& calendar) {
    Keys keys;
    for (const Period period : periods) {
        keys.insert(justFinished(now, period, WumbleLife{}, calendar).key);
    }
    return keys;
}

bool WumbleLife::markRecapSeen(const Recap& recap, Date now, const Calendar& calendar) {
    const auto justFinished = Recap::justFinishedKeys(now, calendar);
    if (!justFinished.contains(recap.key)) {
        return false;
    }
    const auto seen = seenRecaps.value_or(std::vector<std::string>{});
    Recap::Keys next{recap.key};
    std::ranges::copy_if(seen, std::inserter(next, next.end()),
                         [&](const auto& key) { return justFinished.contains(key); });
    if (std::ranges::equal(next, seen)) {
        return false;
    }
    seenRecaps.emplace(next.begin(), next.end());
    return true;
}

} // namespace wumble
