#include "Quietlark/Model/AppModel.h"
#include "WumbleCore/Life/DayKey.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quietlark {

namespace {

using Keys = wumble::Recap::Keys;

Keys keySet(const std::optional<std::vector<std::string>>& keys) {
    return keys ? Keys(keys->begin(), keys->end()) : Keys();
}

} // namespace

void AppModel::setCalendar(wumble::Calendar calendar) {
    engine_.setCalendar(calendar);
    services_.calendar = std::move(calendar);
    sync();
}

void AppModel::rollDayIfNeeded() {
    const wumble::Date now = state_.now.value();
    if (wumble::DayKey::string(now, calendar()) == state_.today.value().day) {
        return;
    }
    dropRevealOfAnotherDay(now);
    auto today = state_.today.value();
    changeLife([&](wumble::WumbleLife& life) { today = life.today(now, calendar(), services_.random); });
    state_.today = std::move(today);
    greetToday();
}

/// Yesterday's reveal is past keeping: the new pet isn't shown under it.
void AppModel::dropRevealOfAnotherDay(wumble::Date date) {
    if (heldReveal_ && wumble::DayKey::string(date, calendar()) != state_.today.value().day) {
        closeBreakScreen();
    }
}

void AppModel::greetToday() {
    const auto& life = state_.life.value();
    const wumble::WumbleDay& today = state_.today.value();
    // While others watch the greeting is only put off.
    if (life.welcomed == false || life.greetedDay == today.day || hidingFromCapture()) {
        return;
    }
    changeLife([&](wumble::WumbleLife& changed) { changed.greetedDay = today.day; });
    // A day with a break behind it has no news to tell.
    if (today.rests == 0) {
        showUnlessCaptured(wumble::Toast::arrival(today));
    }
}

/// One recap at a time, and never into a break, a warning or a wait.
void AppModel::announceFinishedRecaps() {
    if (!std::holds_alternative<wumble::phase::Working>(state_.phase.value()) ||
        state_.headsUpVisible.value() || state_.hold.value() || hidingFromCapture()) {
        return;
    }
    const wumble::Date now = state_.now.value();
    const auto& life = state_.life.value();
    Keys announced = keySet(life.announcedRecaps);
    announced.merge(keySet(life.seenRecaps));
    if (std::ranges::includes(announced, wumble::Recap::justFinishedKeys(now, calendar()))) {
        return; // as almost always, and without a look at the whole history
    }
    const auto due =
        wumble::Recap::dueAnnouncements(now, announced, life, state_.history.value(), calendar());
    if (due.empty()) {
        return;
    }
    const wumble::Recap& recap = due.back();
    announced.insert(recap.key);
    changeLife([&](wumble::WumbleLife& changed) {
        changed.announcedRecaps.emplace(announced.begin(), announced.end());
    });
    showUnlessCaptured(wumble::Toast::recap(recap.period, recap.start,
                                            static_cast<wumble::Counter>(recap.presentWumbles().size()),
                                            recap.completed));
}

wumble::Recap AppModel::recap(wumble::Recap::Period period, wumble::Date containing) const {
    return wumble::Recap::containing(containing, period, state_.life.value(), state_.history.value(),
                                     calendar());
}

std::optional<wumble::Recap> AppModel::unseenRecap() const {
    const auto& life = state_.life.value();
    return wumble::Recap::unseenFinished(currentTime(), keySet(life.seenRecaps), life, state_.history.value(),
                                         calendar());
}

void AppModel::markSeen(const wumble::Recap& recap) {
    changeLife([&](wumble::WumbleLife& life) { life.markRecapSeen(recap, currentTime(), calendar()); });
}

wumble::DaySummary AppModel::todaySummary() const {
    const std::string& day = state_.today.value().day;
    const auto summaries = wumble::DaySummary::summaries(state_.history.value(), calendar());
    const auto found = summaries.find(day);
    return found != summaries.end() ? found->second : wumble::DaySummary{.day = day};
}

/// With office hours on, their days are the workdays.
wumble::Counter AppModel::streak() const {
    const auto& settings = state_.settings.value();
    const auto isOfficeDay = [&](wumble::Date date) {
        const auto& days = settings.officeHours;
        const auto found = std::ranges::find(days, calendar().weekday(date), &wumble::DaySchedule::weekday);
        return found != days.end() && found->enabled;
    };
    const auto& life = state_.life.value();
    return settings.officeHoursEnabled ? life.currentStreak(state_.now.value(), calendar(), isOfficeDay)
                                       : life.currentStreak(state_.now.value(), calendar());
}

} // namespace quietlark
