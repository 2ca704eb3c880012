#include "Quietlark/SystemCalendar.h"

#include <QTimeZone>

#include <string>

namespace quietlark {

namespace {

/// The rules of the machine's zone, also where its name isn't known.
constexpr auto unnamedZone = "/etc/localtime";

constexpr auto unchosenLocale = "en_US";

/// Without encoding and variant, which say nothing about words.
std::string timeLocale() {
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const std::string value = qgetenv(variable).toStdString();
        if (!value.empty()) {
            const auto name = value.substr(0, value.find_first_of(".@"));
            return name == "C" || name == "POSIX" ? unchosenLocale : name;
        }
    }
    return unchosenLocale;
}

} // namespace

wumble::Calendar systemCalendar() {
    const std::string locale = timeLocale();
    for (const std::string& zone : {QTimeZone::systemTimeZoneId().toStdString(), std::string(unnamedZone)}) {
        if (const auto calendar = wumble::Calendar::make(zone, locale)) {
            return *calendar;
        }
    }
    return {};
}

} // namespace quietlark
