#include "Quietlark/Model/ModelWords.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace quietlark::ModelWords {

namespace {

std::string replaced(std::string_view text, std::string_view part, std::string_view by) {
    std::string result(text);
    for (auto at = result.find(part); at != std::string::npos; at = result.find(part, at + by.size())) {
        result.replace(at, part.size(), by);
    }
    return result;
}

enum class Nearness { sameDay, nextDay, later };

Nearness nearness(wumble::Date date, wumble::Date now, const wumble::Calendar& calendar) {
    const auto today = calendar.day(now);
    const auto day = calendar.day(date);
    if (day == today) {
        return Nearness::sameDay;
    }
    return day == today + std::chrono::days{1} ? Nearness::nextDay : Nearness::later;
}

} // namespace

wumble::Toast toast(const Message& message, std::string_view filling) {
    return toast(message, filling, filling);
}

wumble::Toast toast(const Message& message, std::string_view titleFilling, std::string_view subtitleFilling) {
    return {.title = replaced(message.title, "{}", titleFilling),
            .subtitle = replaced(message.subtitle, "{}", subtitleFilling),
            .mood = message.mood,
            .closable = message.closable};
}

std::string spoken(const wumble::Toast& toast) {
    constexpr std::array<std::string_view, 4> sentenceEnds{".", "!", "?", "…"};
    if (!toast.subtitle) {
        return toast.title;
    }
    const bool isSentence = std::ranges::any_of(
        sentenceEnds, [&](std::string_view end) { return std::string_view(toast.title).ends_with(end); });
    return toast.title + (isSentence ? " " : ". ") + replaced(*toast.subtitle, " · ", ", ");
}

std::string breaksOnUntil(const std::optional<wumble::Date>& end, wumble::Date now,
                          const wumble::Calendar& calendar) {
    return end && now < *end ? "Breaks are on until " + calendar.shortTime(*end) + "." : "Breaks are on.";
}

std::string seeYou(const std::optional<wumble::Date>& next, wumble::Date now,
                   const wumble::Calendar& calendar) {
    if (!next) {
        return "soon";
    }
    switch (nearness(*next, now, calendar)) {
    case Nearness::sameDay: return "at " + calendar.shortTime(*next);
    case Nearness::nextDay: return "tomorrow";
    case Nearness::later: break;
    }
    return calendar.weekdayName(*next);
}

std::string backLine(const std::optional<wumble::Date>& next, wumble::Date now,
                     const wumble::Calendar& calendar) {
    if (!next) {
        return "on your next workday";
    }
    std::string atTime = "at " + calendar.shortTime(*next);
    switch (nearness(*next, now, calendar)) {
    case Nearness::sameDay: return atTime;
    case Nearness::nextDay: return "tomorrow " + atTime;
    case Nearness::later: break;
    }
    return calendar.weekdayName(*next) + " " + atTime;
}

} // namespace quietlark::ModelWords
