#include "Quietlark/Surfaces/Tray/TrayWords.h"

#include "Quietlark/Model/ModelWords.h"
#include "Quietlark/Model/StatusLine.h"
#include "WumbleCore/Foundation/Match.h"
#include "WumbleCore/Foundation/Text.h"
#include "WumbleCore/Words/Format.h"
#include "WumbleCore/Words/WaitLine.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quietlark::TrayWords {

namespace Format = wumble::Format;

namespace {

constexpr double aMinute = 60;
constexpr double shortSnooze = wumble::BreakEngine::longSnooze;

/// What the person does, in as few letters as the panel has room for; in the order of the activity's cases.
constexpr std::array<std::string_view, std::variant_size_v<wumble::SmartActivity>> activityTitles{
    "Call", "Sharing", "Video", "Game", "Focus"};

/// "the call"; a focus app goes by its name.
constexpr std::array<std::string_view, std::variant_size_v<wumble::SmartActivity>> activityNouns{
    "the call", "the share", "the video", "the game", ""};

/// Minutes of a break of another length.
constexpr std::array<int, 3> otherMinutes{5, 10, 15};

std::string noun(const wumble::SmartActivity& activity) {
    const auto* focus = std::get_if<wumble::activity::FocusApp>(&activity);
    return focus != nullptr ? focus->app : std::string(activityNouns.at(activity.index()));
}

const wumble::SmartActivity* activityHeldFor(const AppState& state) {
    const auto* smart = holdOf<wumble::hold::Smart>(state);
    return smart != nullptr ? &smart->activity : nullptr;
}

/// Seconds until a wait after an activity is over; absent without one.
std::optional<double> cooldown(const AppState& state) {
    const auto* cooling = holdOf<wumble::hold::Cooldown>(state);
    return cooling != nullptr ? std::optional(std::max(cooling->until - state.now.value(), 0.0))
                              : std::nullopt;
}

std::string dueTitle(const AppState& state) {
    if (const auto* activity = activityHeldFor(state)) {
        return std::string(activityTitles.at(activity->index()));
    }
    if (const auto cooling = cooldown(state)) {
        return Format::menuBar(*cooling);
    }
    return isHeldByTyping(state) ? wumble::capitalized(typingHoldVerb(state))
                                 : Format::menuBar(state.secondsUntilBreak.value());
}

bool isUntilTomorrow(wumble::Date until, wumble::Date now, const wumble::Calendar& calendar) {
    constexpr double aDay = 86400;
    return until == calendar.startOfDay(calendar.startOfDay(now) + aDay + aDay / 2);
}

Status pausedStatus(const wumble::pause::Manual& manual, const AppState& state,
                    const wumble::Calendar& calendar) {
    const wumble::Date now = state.now.value();
    if (!manual.until) {
        return {.words = "Paused", .detail = "until you resume"};
    }
    if (isUntilTomorrow(*manual.until, now, calendar)) {
        return {.words = "Paused", .detail = "until tomorrow"};
    }
    return {.words = "Paused · resumes in", .clock = Format::clock(*manual.until - now)};
}

std::string holdLine(const AppState& state, const wumble::BreakEngine& engine) {
    if (isHeldByTyping(state)) {
        return state.dragging.value()
                   ? "The break starts when you let go"
                   : "The break starts when you pause " + std::string(typingHoldVerb(state));
    }
    if (const auto& after = state.breatherAfter.value()) {
        const char* what = engine.waitingForPause() ? " · the break will wait" : " · a short breather first";
        return std::string(doneWords(*after)) + what;
    }
    return {};
}

Status runningStatus(const AppState& state, const wumble::BreakEngine& engine) {
    const std::string kind(wumble::title(state.upcomingKind.value()));
    return {.words = kind + " in",
            .clock = Format::clock(state.secondsUntilBreak.value()),
            .detail = holdLine(state, engine),
            .hint = engine.waitingForPause() ? "Later if you're still typing" : "",
            .tone = Status::Tone::counting,
            .emphasized = engine.waitingForPause()};
}

Status workingStatus(const AppState& state, const wumble::BreakEngine& engine) {
    const bool isDue = state.secondsUntilBreak.value() <= 0;
    if (const auto cooling = cooldown(state)) {
        return {.words = "Break waits up to",
                .clock = Format::clock(typingHoldLeft(state).value_or(*cooling)),
                .detail = holdLine(state, engine),
                .tone = Status::Tone::held};
    }
    if (isDue && isHeldByTyping(state)) {
        return {.words = "Break waits", .detail = holdLine(state, engine), .tone = Status::Tone::held};
    }
    const auto* activity = activityHeldFor(state);
    if (activity == nullptr) {
        return runningStatus(state, engine);
    }
    if (isDue) {
        return {.words = "Break waits", .detail = wumble::waitLine(*activity), .tone = Status::Tone::held};
    }
    Status counting = runningStatus(state, engine);
    counting.detail = wumble::title(*activity);
    counting.tone = Status::Tone::held;
    return counting;
}

Status breakStatus(const wumble::ActiveBreak& running, wumble::Date now) {
    return {.words = running.isPreview() ? "Previewing a break" : "On a break",
            .clock = Format::clock(running.remaining(now)),
            .tone = Status::Tone::counting};
}

Status pausedStatus(const wumble::PauseReason& reason, const AppState& state,
                    const wumble::BreakEngine& engine, const wumble::Calendar& calendar) {
    return wumble::match(
        reason, [&](const wumble::pause::Manual& manual) { return pausedStatus(manual, state, calendar); },
        [&](const wumble::pause::OffHours&) {
            const wumble::Date now = state.now.value();
            const auto next = state.settings.value().nextOfficeHoursStart(now, calendar);
            return Status{.words = "Off hours · back " + ModelWords::backLine(next, now, calendar)};
        },
        [&](const wumble::pause::Away&) { return workingStatus(state, engine); });
}

std::string skipLabel(const wumble::BreakEngine& engine) {
    const auto left = engine.settings().advanceSkipsPerDay.remaining(engine.advanceSkipsToday());
    const std::string plain = "Skip the next break";
    return left ? plain + " · " + std::to_string(*left) + " left today" : plain;
}

std::string minutes(double seconds) {
    return std::to_string(std::lround(std::max(seconds, 0.0) / aMinute)) + " min";
}

} // namespace

MenuBarIcon::Mood menuBarMood(const AppState& state, double breakTarget) {
    constexpr int steps = 6;
    const auto awake = [&]() -> MenuBarIcon::Mood {
        const double left = state.secondsUntilBreak.value();
        if (left <= 0) {
            return MenuBarIcon::mood::Due{};
        }
        const double nearness = breakTarget > 0 ? std::clamp(1 - left / breakTarget, 0.0, 1.0) : 0;
        return MenuBarIcon::mood::Awake{std::min(static_cast<int>(nearness * steps), steps - 1)};
    };
    return wumble::match(
        state.phase.value(),
        [](const wumble::phase::OnBreak&) -> MenuBarIcon::Mood { return MenuBarIcon::mood::OnBreak{}; },
        [&](const wumble::phase::Working&) { return awake(); },
        [](const auto&) -> MenuBarIcon::Mood { return MenuBarIcon::mood::Paused{}; });
}

std::string menuBarTitle(const AppState& state) {
    if (!state.settings.value().showTimerInMenuBar) {
        return {};
    }
    return wumble::match(
        state.phase.value(),
        [&](const wumble::phase::OnBreak& phase) {
            return Format::clock(phase.activeBreak.remaining(state.now.value()));
        },
        [](const wumble::phase::Paused& phase) {
            return std::string(std::holds_alternative<wumble::pause::Manual>(phase.reason) ? "Paused" : "");
        },
        [](const wumble::phase::Stopped&) { return std::string("Off"); },
        [&](const wumble::phase::Working&) {
            const double left = state.secondsUntilBreak.value();
            return left > 0 ? Format::menuBar(left) : dueTitle(state);
        });
}

std::string accessibilityLabel(const AppState& state, const wumble::Calendar& calendar) {
    const std::string line = statusLine(state, calendar);
    const bool isShort = std::holds_alternative<wumble::phase::Stopped>(state.phase.value());
    return isShort ? "Quietlark, " + line : "Quietlark — " + line;
}

Status status(const AppState& state, const wumble::BreakEngine& engine, const wumble::Calendar& calendar) {
    return wumble::match(
        state.phase.value(),
        [&](const wumble::phase::OnBreak& phase) {
            return breakStatus(phase.activeBreak, state.now.value());
        },
        [&](const wumble::phase::Paused& phase) {
            return pausedStatus(phase.reason, state, engine, calendar);
        },
        [](const wumble::phase::Stopped&) {
            return Status{.words = "Wumble is off",
                          .detail = "No breaks or nudges until you wake Wumble up."};
        },
        [&](const wumble::phase::Working&) { return workingStatus(state, engine); });
}

Slot slotOf(const AppState& state) {
    if (const auto* activity = activityHeldFor(state); activity && state.canIgnoreSmartPause.value()) {
        return slot::DontWait{*activity};
    }
    if (notWaitingShown(state)) {
        return slot::NotWaiting{*state.rawSmartActivity.value()};
    }
    if (const auto note = shareKeepsWaitingNote(state)) {
        return slot::ShareKeepsWaiting{std::string(*note)};
    }
    return slot::None{};
}

std::string dontWaitSpoken(const wumble::SmartActivity& activity) {
    return "Wumble stops waiting for " + noun(activity) + " until your next break";
}

std::string dontWaitHelp(const wumble::SmartActivity& activity) {
    return dontWaitSpoken(activity) + ". Undo puts the hold back.";
}

std::string waitAgainHelp(const wumble::SmartActivity& activity) {
    return "Wait for " + noun(activity) + " again";
}

std::vector<ActionRow> actions(const AppState& state, const wumble::BreakEngine& engine) {
    const auto& phase = state.phase.value();
    if (std::holds_alternative<wumble::phase::Stopped>(phase)) {
        return {{Action::wakeUp, std::string(wakeUp)}};
    }
    if (std::holds_alternative<wumble::phase::OnBreak>(phase)) {
        return {};
    }
    const ActionRow breakNow = {Action::breakNow, "Break now"};
    const auto* paused = std::get_if<wumble::phase::Paused>(&phase);
    if (paused != nullptr && std::holds_alternative<wumble::pause::Manual>(paused->reason)) {
        return {{Action::resume, "Resume now"}};
    }
    if (paused != nullptr && std::holds_alternative<wumble::pause::OffHours>(paused->reason)) {
        return {breakNow};
    }
    std::vector<ActionRow> rows;
    if (paused == nullptr) {
        rows.push_back(breakNow);
    }
    if (state.canSnooze.value()) {
        rows.push_back({Action::snooze, "Snooze " + Format::duration(shortSnooze)});
    }
    if (engine.canSkipInAdvance()) {
        rows.push_back({Action::skip, skipLabel(engine)});
    }
    if (paused == nullptr) {
        rows.push_back({Action::pause, "Pause"});
    }
    return rows;
}

std::string todayCounts(const wumble::DaySummary& day) {
    std::string counts = std::to_string(day.completed) + (day.completed == 1 ? " break" : " breaks");
    if (day.restTime >= aMinute) {
        counts += " · " + Format::duration(day.restTime) + " rested";
    }
    return counts;
}

std::string_view recapLine(const wumble::Recap& recap, wumble::Date now) {
    if (recap.period == wumble::Recap::Period::month) {
        return "Last month's Wumbles together, with your numbers";
    }
    return now < recap.end ? crewHelp : "Last week's Wumbles together, with your numbers";
}

std::string petTitle(const wumble::WumbleDay& day, std::string_view familyName) {
    return wumble::name(day.base).append(" ").append(familyName);
}

std::vector<OtherBreak> otherBreaksOf(const wumble::WumbleSettings& choices) {
    using wumble::BreakKind;
    const auto kindRow = [&](BreakKind kind) {
        return OtherBreak{std::string(wumble::title(kind)) + " · " +
                              Format::duration(choices.breakDuration(kind)),
                          kind,
                          {}};
    };
    std::vector<OtherBreak> rows = {kindRow(BreakKind::shortBreak), kindRow(BreakKind::longBreak)};
    for (const int count : otherMinutes) {
        rows.push_back({minutes(count * aMinute), BreakKind::custom, count * aMinute});
    }
    return rows;
}

} // namespace quietlark::TrayWords
