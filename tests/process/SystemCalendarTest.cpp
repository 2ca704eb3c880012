#include "Quietlark/SystemCalendar.h"
#include "tests/support/Dates.h"

#include <QByteArray>

#include <gtest/gtest.h>
#include <map>
#include <string>

namespace quietlark {
namespace {

using Variables = std::map<std::string, std::string>;

const Variables nothingChosen{{"TZ", ""}, {"LC_ALL", ""}, {"LC_TIME", ""}, {"LANG", ""}};

/// Sets them until the end of the scope.
class Environment {
public:
    explicit Environment(const Variables& variables) {
        for (const auto& [name, value] : variables) {
            before_[name] = qgetenv(name.c_str()).toStdString();
            qputenv(name.c_str(), value.c_str());
        }
    }
    ~Environment() {
        for (const auto& [name, value] : before_) {
            value.empty() ? qunsetenv(name.c_str()) : qputenv(name.c_str(), value.c_str());
        }
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    Variables before_;
};

} // namespace

TEST(SystemCalendar, goesByTheZoneOfTheMachineAndTheLocaleOfTimes) {
    struct Case {
        Variables variables;
        std::string says;
    };
    const Case cases[] = {
        {{{"TZ", "Europe/Berlin"}, {"LANG", "de_DE.UTF-8"}}, "Montag 23:30"},
        {{{"TZ", ":Europe/Berlin"}, {"LANG", "de_DE@euro"}}, "Montag 23:30"},
        {{{"TZ", "Asia/Tokyo"}, {"LANG", "de_DE.UTF-8"}, {"LC_TIME", "en_GB.UTF-8"}}, "Tuesday 07:30"},
        {{{"TZ", "Asia/Tokyo"}, {"LC_TIME", "de_DE.UTF-8"}, {"LC_ALL", "en_GB.UTF-8"}}, "Tuesday 07:30"},
    };
    const auto lateOnMonday = wumble::test::at("2026-03-09T22:30:00Z");
    for (const auto& [variables, says] : cases) {
        const Environment bare(nothingChosen);
        const Environment chosen(variables);
        const auto calendar = systemCalendar();
        EXPECT_EQ(calendar.weekdayName(lateOnMonday) + " " + calendar.shortTime(lateOnMonday), says);
    }
}

TEST(SystemCalendar, isUsableWhateverTheEnvironmentSays) {
    for (const char* zone : {"Mars/Olympus", "CET-1CEST,M3.5.0,M10.5.0", "/nowhere", ":"}) {
        for (const char* locale : {"C", "C.UTF-8", "POSIX", ".", "no locale at all"}) {
            const Environment odd(Variables{{"TZ", zone}, {"LC_ALL", locale}});
            EXPECT_FALSE(systemCalendar().weekdayName({}).empty()) << zone << " " << locale;
        }
    }
    const Environment plain(Variables{{"LC_ALL", "C.UTF-8"}});
    EXPECT_EQ(systemCalendar().weekdayName(wumble::test::at("2026-03-09T12:00:00Z")), "Monday");
}

} // namespace quietlark
