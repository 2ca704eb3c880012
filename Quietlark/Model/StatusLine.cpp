#include "Quietlark/Model/StatusLine.h"

#include "Quietlark/Model/ModelWords.h"
#include "WumbleCore/Foundation/Match.h"
#include "WumbleCore/Foundation/Text.h"
#include "WumbleCore/Storage/DaySummary.h"
#include "WumbleCore/Words/Format.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace quietlark {

namespace Format = wumble::Format;

namespace {

constexpr std::string_view separator = " · ";

/// In the order of the activity's cases.
constexpr std::array<std::string_view, std::variant_size_v<wumble::SmartActivity>> doneWordsTable{
    "Call's done", "Done sharing", "Done watching", "Out of the game", "Focus is done"};

std::string joined(std::string_view first, std::string_view second) {
    return std::string(first).append(separator).append(second);
}

/// With a small first letter, to stand within a sentence.
std::string uncapitalized(std::string_view text) {
    std::string result(text);
    if (!result.empty()) {
        result.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(result.front())));
    }
    return result;
}

/// "Quick break in 4:05"
std::string breakIn(const AppState& state) {
    return std::string(wumble::title(state.upcomingKind.value())) + " in " +
           Format::clock(state.secondsUntilBreak.value());
}

std::string onBreakLine(const wumble::ActiveBreak& activeBreak, wumble::Date now) {
    return activeBreak.isPreview()
               ? joined("Previewing a break", "nothing is counted")
               : joined("On a break", Format::clock(activeBreak.remaining(now)) + " left");
}

std::string pausedByHandLine(const wumble::pause::Manual& manual, wumble::Date now) {
    return manual.until ? joined("Paused", "resumes in " + Format::duration(*manual.until - now))
                        : "Paused until you resume";
}

std::string awayLine(const wumble::pause::Away& absence, const AppState& state) {
    const double away = state.now.value() - absence.since;
    const auto& settings = state.settings.value();
    if (away < wumble::WumbleSettings::awayCountsAsMove) {
        return joined("Away", "paused with " + Format::clock(state.secondsUntilBreak.value()) + " to go");
    }
    const std::string awayFor = "Away " + Format::duration(away);
    if (away < wumble::DaySummary::longestAway) {
        return joined(awayFor,
                      settings.longBreaksEnabled ? "counts as your long break" : "counts as a break");
    }
    return joined(awayFor, "fresh start when you're back");
}

std::string offHoursLine(const AppState& state, const wumble::Calendar& calendar) {
    const auto now = state.now.value();
    const auto next = state.settings.value().nextOfficeHoursStart(now, calendar);
    return joined("Off hours", "back " + ModelWords::backLine(next, now, calendar));
}

std::string pausedLine(const wumble::PauseReason& reason, const AppState& state,
                       const wumble::Calendar& calendar) {
    return wumble::match(
        reason,
        [&](const wumble::pause::Manual& manual) { return pausedByHandLine(manual, state.now.value()); },
        [&](const wumble::pause::Away& absence) { return awayLine(absence, state); },
        [&](const wumble::pause::OffHours&) { return offHoursLine(state, calendar); });
}

std::string waitingLine(const wumble::SmartActivity& activity, const AppState& state) {
    return state.secondsUntilBreak.value() > 0
               ? joined(breakIn(state), wumble::title(activity))
               : joined(wumble::title(activity), "waiting " + Format::waited(state.overdue.value()));
}

std::string typingLine(const AppState& state) {
    return joined("Break waits for you to finish " + std::string(typingHoldVerb(state)),
                  "up to " + Format::clock(typingHoldLeft(state).value_or(0)));
}

std::string runningLine(const AppState& state) {
    std::string plain = breakIn(state);
    if (notWaitingShown(state)) {
        return joined("Not waiting till your next break", uncapitalized(plain));
    }
    if (isAhead(state.readingUntil.value(), state.now.value())) {
        return joined("Snoozed", uncapitalized(plain));
    }
    if (const auto& activity = state.breatherAfter.value()) {
        return joined(plain, uncapitalized(doneWords(*activity)));
    }
    return plain;
}

std::string workingLine(const AppState& state) {
    if (const auto* smart = holdOf<wumble::hold::Smart>(state)) {
        return waitingLine(smart->activity, state);
    }
    return isHeldByTyping(state) ? typingLine(state) : runningLine(state);
}

} // namespace

std::string statusLine(const AppState& state, const wumble::Calendar& calendar) {
    return wumble::match(
        state.phase.value(),
        [&](const wumble::phase::OnBreak& phase) {
            return onBreakLine(phase.activeBreak, state.now.value());
        },
        [&](const wumble::phase::Paused& phase) { return pausedLine(phase.reason, state, calendar); },
        [](const wumble::phase::Stopped&) { return std::string("Wumble is off"); },
        [&](const wumble::phase::Working&) { return workingLine(state); });
}

wumble::WumbleMood mood(const AppState& state) {
    using wumble::WumbleMood;
    const auto now = state.now.value();
    const auto& phase = state.phase.value();
    if (isAhead(state.celebrateUntil.value(), now)) {
        return WumbleMood::celebrate;
    }
    if (std::holds_alternative<wumble::phase::OnBreak>(phase)) {
        return WumbleMood::resting;
    }
    if (!std::holds_alternative<wumble::phase::Working>(phase)) {
        return WumbleMood::sleeping;
    }
    if (isAhead(state.nodUntil.value(), now)) {
        return WumbleMood::nodding;
    }
    if (isAhead(state.okayUntil.value(), now)) {
        return WumbleMood::snoozed;
    }
    if (isHeldByTyping(state)) {
        return typingAlongMood(state);
    }
    if (state.headsUpVisible.value()) {
        return WumbleMood::peek;
    }
    const bool isHumming =
        holdOf<wumble::hold::Smart>(state) != nullptr || isAhead(state.readingUntil.value(), now);
    return isHumming ? WumbleMood::humming : WumbleMood::idle;
}

wumble::WumbleMood typingAlongMood(const AppState& state) {
    if (state.dragging.value()) {
        return wumble::WumbleMood::pulled;
    }
    return state.detectorStatus.value().dictating ? wumble::WumbleMood::talking : wumble::WumbleMood::waiting;
}

std::string_view typingHoldVerb(const AppState& state) {
    if (state.dragging.value()) {
        return "dragging";
    }
    return state.detectorStatus.value().dictating ? "dictating" : "typing";
}

std::optional<double> typingHoldLeft(const AppState& state) {
    const auto& ends = state.typingHoldEnds.value();
    return ends ? std::optional(std::max(*ends - state.now.value(), 0.0)) : std::nullopt;
}

bool notWaitingShown(const AppState& state) {
    return state.ignoringSmartPause.value() &&
           std::holds_alternative<wumble::phase::Working>(state.phase.value()) &&
           state.rawSmartActivity.value() && holdOf<wumble::hold::Smart>(state) == nullptr;
}

std::optional<std::string_view> shareKeepsWaitingNote(const AppState& state) {
    const auto* smart = holdOf<wumble::hold::Smart>(state);
    const bool waitsForCall =
        smart != nullptr && std::holds_alternative<wumble::activity::Meeting>(smart->activity);
    if (!waitsForCall || !state.liveShare.value() ||
        !std::holds_alternative<wumble::phase::Working>(state.phase.value())) {
        return std::nullopt;
    }
    return state.detectorStatus.value().captureIgnored
               ? "Your screen may be shared too, so Wumble keeps waiting"
               : "You're sharing your screen too, so Wumble keeps waiting";
}

std::string_view doneWords(const wumble::SmartActivity& activity) {
    return doneWordsTable.at(activity.index());
}

} // namespace quietlark
