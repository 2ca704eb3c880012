#include "tools/wumble-timeline/Timeline.h"
#include "tools/wumble-timeline/Sentences.h"

#include <array>

namespace wumble::timeline {

namespace {

constexpr std::string_view underTimes = "         ";

std::string dayTitle(Date date, const Calendar& calendar) {
    constexpr std::array months{"January", "February", "March",     "April",   "May",      "June",
                                "July",    "August",   "September", "October", "November", "December"};
    const std::chrono::year_month_day day{calendar.day(date)};
    return calendar.weekdayName(date) + ", " + std::to_string(static_cast<unsigned>(day.day())) + " " +
           months.at(static_cast<unsigned>(day.month()) - 1) + " " +
           std::to_string(static_cast<int>(day.year()));
}

} // namespace

void Timeline::tellComment(std::string_view comment) {
    const auto start = comment.find_first_not_of(' ');
    if (start == std::string_view::npos) {
        return;
    }
    output_ << (isAfterComment_ ? "" : "\n") << "  " << comment.substr(start) << '\n';
    isAfterComment_ = true;
}

void Timeline::tell(const Json& command, const Json& answer) {
    followCalendar(command);
    if (const auto now = member(command, "now").number()) {
        now_ = Date{*now};
    }
    if (const auto* error = member(answer, "error").string()) {
        tellMoment(now_, "! " + *error);
        return;
    }
    if (const auto sentence = commandSentence(command, calendar_); !sentence.empty()) {
        tellMoment(now_, sentence);
    }
    if (const auto* events = member(answer, "events").array()) {
        tellEvents(*events);
    }
    for (const auto& sentence : answerSentences(command, answer, calendar_)) {
        output_ << underTimes << sentence << '\n';
        isAfterComment_ = false;
    }
    if (const auto until = member(command, "until").number(); until && member(answer, "ticks").number()) {
        now_ = Date{*until};
    }
}

/// The events of one command have its time; those of a longer run bring their own.
void Timeline::tellEvents(const Json::Array& events) {
    for (const auto& entry : events) {
        const auto happenedAt = member(entry, "at").number();
        const auto& event = happenedAt ? member(entry, "event") : entry;
        if (const auto sentence = eventSentence(event, calendar_); !sentence.empty()) {
            tellMoment(happenedAt ? Date{*happenedAt} : now_, sentence);
        }
    }
}

void Timeline::tellMoment(Date date, const std::string& sentence) {
    beginDay(date);
    output_ << "  " << clockTime(date, calendar_) << "  " << sentence << '\n';
    isAfterComment_ = false;
}

void Timeline::beginDay(Date date) {
    const auto day = calendar_.day(date);
    if (day_ == day) {
        return;
    }
    day_ = day;
    output_ << '\n' << dayTitle(date, calendar_) << '\n';
}

void Timeline::followCalendar(const Json& command) {
    const auto* timeZone = member(command, "timeZone").string();
    if (timeZone == nullptr) {
        return;
    }
    if (auto calendar = Calendar::make(*timeZone, "en_US")) {
        calendar_ = std::move(*calendar);
    }
}

} // namespace wumble::timeline
