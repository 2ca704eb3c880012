#include "Quietlark/Surfaces/BreakScreen/BreakFootnote.h"

namespace quietlark {

namespace {

constexpr std::string_view noSkipping = "No skipping this time · Wumble believes in you";
constexpr std::string_view escSnoozes = "Press Esc twice to snooze 5 min";
constexpr std::string_view noSnoozes = "No snoozes left";
constexpr std::string_view escSkips = "Press Esc twice to skip";
constexpr std::string_view skipComes = "Skip shows up in a moment";

/// Where no snoozes were ever given, none have run out.
bool snoozesRanOut(const AppState& state) {
    const auto& settings = state.settings.value();
    const auto none = wumble::Limit::count(0);
    return !state.canSnooze.value() && settings.snoozesPerBreak != none && settings.snoozesPerDay != none;
}

} // namespace

std::string breakFootnote(const AppModel& model, bool isFinished, wumble::Date now) {
    const AppState& state = model.state();
    const auto& settings = state.settings.value();
    if (isFinished && model.engine().canEndBreak(now)) {
        return std::string(endByKey);
    }
    if (settings.enforcement == wumble::Enforcement::hardcore) {
        return std::string(noSkipping);
    }
    if (settings.doubleEscapeAction == wumble::EscapeAction::snooze) {
        return std::string(state.canSnooze.value() ? escSnoozes : noSnoozes);
    }
    const std::string prefix = snoozesRanOut(state) ? std::string(noSnoozes) + " · " : "";
    return prefix + std::string(model.engine().canSkip(now) ? escSkips : skipComes);
}

} // namespace quietlark
