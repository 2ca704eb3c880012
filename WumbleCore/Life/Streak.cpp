#include "WumbleCore/Life/WumbleLife.h"

namespace wumble {

namespace {

enum class DayKind { rested, allSkipped, empty };

DayKind kindOf(const WumbleDay* pet) {
    if (pet == nullptr) {
        return DayKind::empty;
    }
    if (pet->rests >= 1) {
        return DayKind::rested;
    }
    return pet->skips >= 1 ? DayKind::allSkipped : DayKind::empty;
}

} // namespace

Counter WumbleLife::currentStreak(Date asOf, const Calendar& calendar, const IsWorkday& isWorkday) const {
    constexpr std::chrono::days oneDay{1};
    const auto kindOfDay = [&](CivilDay date) { return kindOf(day(date)); };
    CivilDay date = calendar.day(asOf);
    if (kindOfDay(date) != DayKind::rested) {
        date -= oneDay;
    }
    Counter streak = 0;
    for (int gap = 0; gap <= streakGapDays; date -= oneDay) {
        const auto kind = kindOfDay(date);
        if (kind == DayKind::rested) {
            ++streak;
            gap = 0;
        } else if (kind == DayKind::allSkipped && isWorkday(calendar.startOfDay(date))) {
            break;
        } else {
            ++gap;
        }
    }
    return streak;
}

} // namespace wumble
