#include "WumbleCore/Words/BreakWordPicker.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace wumble {

using namespace BreakWords;

namespace {

using Places = std::vector<std::size_t>;

constexpr bool hasWordsForAnyTime(const Tables& tables) {
    const auto suffices = [](const Table& table) {
        return std::ranges::count(table.entries, Needs::nothing, &Entry::needs) > 1;
    };
    return suffices(tables.titles) && suffices(tables.lines);
}
static_assert(hasWordsForAnyTime(quickTables) && hasWordsForAnyTime(longTables),
              "a full bag holds something for any hour and any pet, and something else than the last");

bool isByDay(Date date, const Calendar& calendar) {
    constexpr int from = 7 * 60;
    constexpr int until = 19 * 60;
    const int minute = calendar.minuteOfDay(date);
    return minute >= from && minute < until;
}

bool isOnFriday(Date date, const Calendar& calendar) {
    constexpr int weekday = 6;
    return calendar.weekday(date) == weekday;
}

bool holdsKeepsake(const WumbleDay& day) {
    return day.shows(RevealStep::keepsake) && canBeHugged(day.traits.keepsake);
}

bool isUsable(const Entry& entry, const Context& context, const Calendar& calendar) {
    switch (entry.needs) {
    case Needs::nothing: return true;
    case Needs::day: return isByDay(context.date, calendar);
    case Needs::night: return !isByDay(context.date, calendar);
    case Needs::eyes: return context.day.shows(RevealStep::eyes);
    case Needs::keepsake: return context.day.shows(RevealStep::keepsake);
    case Needs::keepsakeHeld: return holdsKeepsake(context.day);
    }
    return false;
}

Places usablePlaces(const Places& bag, const Table& table, const Context& context, const Calendar& calendar) {
    Places usable;
    std::ranges::copy_if(bag, std::back_inserter(usable), [&](std::size_t place) {
        return isUsable(table.entries[place], context, calendar);
    });
    return usable;
}

Places fullBag(const Table& table) {
    Places bag(table.entries.size());
    std::iota(bag.begin(), bag.end(), 0U);
    return bag;
}

/// What can't be used now stays in the bag for a later hour or stage.
std::string_view draw(BreakWordPicker& picker, const Table& table, const Context& context,
                      const Calendar& calendar, const Random& random) {
    auto& bag = picker.bags[std::string(table.name)];
    auto usable = usablePlaces(bag, table, context, calendar);
    if (usable.empty()) {
        bag = fullBag(table);
        usable = usablePlaces(bag, table, context, calendar);
        if (const auto last = picker.last.find(table.name); last != picker.last.end()) {
            std::erase(usable, last->second);
        }
    }
    const auto place = usable[std::min<std::size_t>(random(usable.size()), usable.size() - 1)];
    std::erase(bag, place);
    picker.last.insert_or_assign(std::string(table.name), place);
    return table.entries[place].text;
}

/// The moments that the break falls on, the most telling first.
std::vector<Moment> moments(const Context& context, const Calendar& calendar) {
    std::vector<Moment> due;
    const auto& day = context.day;
    if (!day.shows(RevealStep::eyes)) {
        due.push_back(context.isLong ? noEyesLong : noEyesQuick);
    }
    if (day.shows(RevealStep::accessory) && !day.shows(RevealStep::keepsake)) {
        due.push_back(keepsakeNext);
    }
    if (context.afterCall) {
        due.push_back(holdsKeepsake(day) ? afterCallHugged : afterCallHummed);
    }
    if (isOnFriday(context.date, calendar)) {
        due.push_back(friday);
    }
    return due;
}

/// The first moment that wasn't said yet on the pet's day.
std::optional<std::string_view> momentLine(BreakWordPicker& picker, const Context& context,
                                           const Calendar& calendar) {
    for (const auto& [name, line] : moments(context, calendar)) {
        const auto said = picker.momentDays.find(name);
        if (said == picker.momentDays.end() || said->second != context.day.day) {
            picker.momentDays.insert_or_assign(std::string(name), context.day.day);
            return line;
        }
    }
    return std::nullopt;
}

} // namespace

Words BreakWordPicker::next(const Context& context, const Calendar& calendar, const Random& random) {
    const auto& tables = context.isLong ? longTables : quickTables;
    const auto title = draw(*this, tables.titles, context, calendar, random);
    auto line = context.moments ? momentLine(*this, context, calendar) : std::nullopt;
    if (!line) {
        line = draw(*this, tables.lines, context, calendar, random);
    }
    return {std::string(title), filled(*line, context.day.traits.keepsake)};
}

} // namespace wumble
