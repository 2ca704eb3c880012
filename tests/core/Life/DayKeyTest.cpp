#include "WumbleCore/Life/DayKey.h"
#include "tests/support/Dates.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

using test::at;
using test::calendarIn;

TEST(DayKey, isTheDayOfThePersonsTimeZone) {
    struct Case {
        const char *timeZone, *date, *key;
    };
    const Case cases[] = {
        {"UTC", "2026-03-09T23:59:59Z", "2026-03-09"},
        {"Europe/Berlin", "2026-03-09T23:00:00Z", "2026-03-10"},
        {"America/New_York", "2026-03-09T03:59:59Z", "2026-03-08"},
        {"UTC", "0033-04-03T12:00:00Z", "0033-04-03"},
    };
    for (const auto& [timeZone, date, key] : cases) {
        EXPECT_EQ(DayKey::string(at(date), calendarIn(timeZone)), key) << timeZone;
    }
}

TEST(DayKey, readsThreeNumbersAndNothingElse) {
    struct Case {
        const char *key, *date;
    };
    const Case cases[] = {
        {"2026-03-09", "2026-03-08T23:00:00Z"},     {"2026-3-9", "2026-03-08T23:00:00Z"},
        {"--2026--03-09-", "2026-03-08T23:00:00Z"}, {"2026-x-03-9y-09", "2026-03-08T23:00:00Z"},
        {"2026-02-30", "2026-03-01T23:00:00Z"},     {"2026-13-01", "2026-12-31T23:00:00Z"},
        {"2026-06-01", "2026-05-31T22:00:00Z"},
    };
    for (const auto& [key, date] : cases) {
        EXPECT_EQ(DayKey::date(key, calendarIn("Europe/Berlin")), at(date)) << key;
    }
    for (const char* key : {"", "-", "2026-03", "2026-03-09-01", "2026 03 09", "2026-03-9.5", "today",
                            "99999-01-01", "2026-01-99999999999999999999"}) {
        EXPECT_FALSE(DayKey::date(key, Calendar())) << key;
    }
}

TEST(DayKey, ofADatesFirstMomentIsTheKeyItself) {
    for (const char* timeZone : {"Europe/Berlin", "America/Sao_Paulo", "America/Havana", "Africa/Cairo"}) {
        const auto calendar = calendarIn(timeZone);
        for (Date date = at("2016-01-01T12:00:00Z"); date < at("2025-01-01T00:00:00Z"); date = date + 86400) {
            const auto key = DayKey::string(date, calendar);
            ASSERT_EQ(DayKey::string(DayKey::date(key, calendar).value(), calendar), key) << timeZone;
        }
    }
}

} // namespace
} // namespace wumble
