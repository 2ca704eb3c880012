#include "WumbleCore/Engine/WumbleSettings.h"
#include "tests/support/Dates.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

using test::at;
using test::calendarIn;

constexpr const char* everyDay = "1234567";
constexpr const char* mondayToFriday = "23456";

WumbleSettings hours(std::string_view workdays, Counter start = 600, Counter end = 1140) {
    WumbleSettings settings{.officeHoursEnabled = true};
    for (auto& day : settings.officeHours) {
        const bool isWorkday = workdays.find(static_cast<char>('0' + day.weekday)) != std::string_view::npos;
        day = {.weekday = day.weekday, .enabled = isWorkday, .startMinute = start, .endMinute = end};
    }
    return settings;
}

std::string text(const std::optional<Date>& date) { return date ? iso8601Text(*date).value() : "none"; }

TEST(OfficeHours, areAskedOfTheDayOnTheWallClock) {
    struct Case {
        WumbleSettings settings;
        const char* date;
        bool isWithin;
    };
    const auto night = hours(everyDay, 1320, 360);
    const auto skippedStart = hours(everyDay, 150, 600);
    WumbleSettings twice = hours("2");
    twice.officeHours.push_back({.weekday = 1, .enabled = true});
    const Case cases[] = {
        {{}, "2026-03-07T12:00:00Z", true}, // off: always
        {hours(mondayToFriday), "2026-03-09T08:59:59Z", false},
        {hours(mondayToFriday), "2026-03-09T17:59:59Z", true},
        {hours(mondayToFriday), "2026-03-09T18:00:00Z", false},
        {hours(mondayToFriday), "2026-03-07T12:00:00Z", false},
        {{.officeHoursEnabled = true, .officeHours = {}}, "2026-03-09T12:00:00Z", false},
        {twice, "2026-03-08T12:00:00Z", false}, // the first entry of a weekday counts
        {night, "2026-03-09T22:00:00Z", true},
        {night, "2026-03-10T04:59:59Z", true},
        {night, "2026-03-10T05:00:00Z", false},
        {hours("2", 1320, 360), "2026-03-10T03:00:00Z", false}, // the morning belongs to its own day
        {hours("2", 1320, 360), "2026-03-09T03:00:00Z", true},
        {hours(everyDay, 600, 600), "2026-03-09T05:00:00Z", true}, // round the clock
        // 01:59 is followed by 03:00 …
        {skippedStart, "2026-03-29T00:59:59Z", false},
        {skippedStart, "2026-03-29T01:00:00Z", true},
        // … and 02:59 by 02:00.
        {skippedStart, "2026-10-25T00:59:59Z", true},
        {skippedStart, "2026-10-25T01:00:00Z", false},
        {skippedStart, "2026-10-25T01:30:00Z", true},
    };
    for (const auto& [settings, date, isWithin] : cases) {
        EXPECT_EQ(settings.isWithinOfficeHours(at(date), calendarIn("Europe/Berlin")), isWithin) << date;
    }
}

TEST(OfficeHours, endOnTheirOwnDay) {
    struct Case {
        WumbleSettings settings;
        const char* date;
        const char* end;
    };
    const Case cases[] = {
        {{}, "2026-03-09T12:00:00Z", "none"},
        {hours(mondayToFriday), "2026-03-09T12:00:00Z", "2026-03-09T18:00:00Z"},
        {hours(mondayToFriday), "2026-03-07T12:00:00Z", "none"},
        {hours(everyDay, 1320, 360), "2026-03-09T12:00:00Z", "none"},
        {hours(everyDay, 60, 150), "2026-03-29T12:00:00Z", "2026-03-29T01:00:00Z"}, // 02:30 is skipped
        {hours(everyDay, 60, 150), "2026-10-25T12:00:00Z", "2026-10-25T00:30:00Z"}, // and comes twice
        {hours(everyDay, 600, 99999), "2026-03-09T12:00:00Z", "2026-03-09T23:00:00Z"},
    };
    for (const auto& [settings, date, end] : cases) {
        EXPECT_EQ(text(settings.officeHoursEnd(at(date), calendarIn("Europe/Berlin"))), end) << date;
    }
}

TEST(OfficeHours, beginAgainWhereNoHoursRanBefore) {
    struct Case {
        const char* timeZone;
        WumbleSettings settings;
        const char* date;
        const char* next;
    };
    const Case cases[] = {
        {"Europe/Berlin", {}, "2026-03-09T12:00:00Z", "none"},
        {"Europe/Berlin", hours(""), "2026-03-09T12:00:00Z", "none"},
        {"Europe/Berlin", hours(mondayToFriday), "2026-03-07T11:00:00Z", "2026-03-09T09:00:00Z"},
        {"Europe/Berlin", hours(mondayToFriday), "2026-03-09T08:59:59Z", "2026-03-09T09:00:00Z"},
        {"Europe/Berlin", hours(mondayToFriday), "2026-03-09T09:00:00Z", "2026-03-10T09:00:00Z"},
        {"Europe/Berlin", hours("2"), "2026-03-09T09:00:00Z", "2026-03-16T09:00:00Z"}, // a week later
        // A night that merely goes on has no start; its morning has one when the day before was free.
        {"Europe/Berlin", hours(everyDay, 1320, 360), "2026-03-09T21:30:00Z", "2026-03-10T21:00:00Z"},
        {"Europe/Berlin", hours("2", 1320, 360), "2026-03-08T11:00:00Z", "2026-03-08T23:00:00Z"},
        {"Europe/Berlin", hours(everyDay, 600, 600), "2026-03-09T12:00:00Z", "none"}, // they never stop
        {"Europe/Berlin", hours(everyDay, 150, 600), "2026-03-28T12:00:00Z", "2026-03-29T01:00:00Z"},
        {"Europe/Berlin", hours(everyDay, 150, 600), "2026-10-24T12:00:00Z", "2026-10-25T00:30:00Z"},
        // Friday the 30th was left out: Thursday's night is followed by Saturday's.
        {"Pacific/Apia", hours(mondayToFriday), "2011-12-30T06:00:00Z", "2012-01-01T20:00:00Z"},
        {"Pacific/Apia", hours("67"), "2011-12-30T06:00:00Z", "2011-12-30T20:00:00Z"},
        {"Pacific/Apia", hours(everyDay, 1320, 360), "2011-12-30T09:00:00Z", "2011-12-31T08:00:00Z"},
    };
    for (const auto& [timeZone, settings, date, next] : cases) {
        EXPECT_EQ(text(settings.nextOfficeHoursStart(at(date), calendarIn(timeZone))), next) << date;
    }
}

TEST(OfficeHours, areSharedFromTheFirstWorkdayOfTheList) {
    auto settings = hours("246");
    settings.officeHours[1].startMinute = 480;
    settings.officeHours[2].startMinute = 1; // Tuesday, a free day
    EXPECT_FALSE(settings.workdaysShareHours());
    settings.shareFirstWorkdayHours();
    EXPECT_TRUE(settings.workdaysShareHours());
    EXPECT_EQ(settings.officeHours[5].startMinute, 480);
    EXPECT_EQ(settings.officeHours[2].startMinute, 1);
    auto free = hours("");
    free.shareFirstWorkdayHours();
    EXPECT_EQ(free, hours(""));
    EXPECT_TRUE(free.workdaysShareHours());
}

} // namespace
} // namespace wumble
