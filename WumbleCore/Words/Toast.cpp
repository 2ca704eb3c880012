#include "WumbleCore/Words/Toast.h"
#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Foundation/Text.h"
#include "WumbleCore/Motion/Choreography.h"
#include "WumbleCore/Words/Copy.h"
#include "WumbleCore/Words/Format.h"
#include "WumbleCore/Words/NudgeCopy.h"
#include "WumbleCore/Words/WaitLine.h"

#include <algorithm>
#include <cmath>

namespace wumble {

namespace {

/// An unhurried invitation stays longer than its words take.
constexpr double recapDuration = 14.0;

std::string snoozedTitle(double by) { return "Snoozed for " + Format::duration(by); }

/// "1 break", "2 breaks"
std::string counted(Counter count, const std::string& thing) {
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

Toast nudge(WellnessKind kind, WumbleMood mood, double duration, Toast::FollowAlong followAlong) {
    return {.title = std::string(NudgeCopy::title(kind)),
            .mood = mood,
            .duration = duration,
            .placement = Toast::Placement::center,
            .followAlong = std::move(followAlong),
            .closable = true};
}

} // namespace

double Toast::readingTime(std::string_view title, const std::optional<std::string>& subtitle) {
    constexpr double shortest = 4.0;
    constexpr double perWord = 0.3;
    constexpr double toNotice = 1.5;
    const auto words = wordCount(title) + wordCount(subtitle.value_or(""));
    const double needed = perWord * static_cast<double>(words) + toNotice;
    return std::round(std::max(shortest, needed) * 2) / 2;
}

Toast Toast::snoozed(double by) {
    return {.title = snoozedTitle(by),
            .subtitle = "Got it! Wumble will hum to itself until then.",
            .mood = WumbleMood::snoozed};
}

Toast Toast::afterThis() {
    return {.title = snoozedTitle(BreakEngine::longSnooze),
            .subtitle = "Got it! If you're still typing then, Wumble will wait.",
            .mood = WumbleMood::snoozed};
}

Toast Toast::smartPause(const SmartActivity& activity) {
    return {.title = "Wumble will wait",
            .subtitle = wumble::title(activity) + ". Breaks wait " + waitLine(activity) + ".",
            .mood = WumbleMood::humming,
            .closable = true};
}

Toast Toast::recap(Recap::Period period, Date start, Counter wumbles, Counter breaks) {
    return {.title = "Your " + std::string(enumText(period)) + " with Wumble is ready",
            .subtitle = counted(wumbles, "Wumble") + " · " + counted(breaks, "break") +
                        ". Click to see them together.",
            .mood = WumbleMood::celebrate,
            .duration = recapDuration,
            .action = OpenRecap{period, start},
            .closable = true};
}

Toast Toast::welcomeBack(double away, bool asMoveBreak, const std::optional<std::string>& grew) {
    const std::string welcome = "Welcome back!";
    const auto counts =
        Format::duration(away) + " away counts as " + (asMoveBreak ? "your long break" : "a break") + ".";
    return {.title = grew.value_or(welcome),
            .subtitle = grew ? welcome + " " + counts : counts,
            .mood = grew ? WumbleMood::celebrate : WumbleMood::peek,
            .closable = true};
}

Toast Toast::freshStart(double nextBreakIn) {
    return {.title = "Welcome back!",
            .subtitle = "Fresh start: next break in " + Format::duration(nextBreakIn) + ".",
            .mood = WumbleMood::peek,
            .closable = true};
}

Toast Toast::arrival(const WumbleDay& day) {
    const auto [title, subtitle] = Copy::arrival(day);
    return {.title = title, .subtitle = subtitle, .mood = WumbleMood::peek, .closable = true};
}

Toast Toast::blink(double linger) {
    return nudge(WellnessKind::blink, WumbleMood::blinking, linger + Choreography::blinkLength,
                 Blinks{Choreography::blinks});
}

Toast Toast::posture(double linger) {
    constexpr int lastStep = NudgeCopy::postureSteps.size() - 1;
    return nudge(WellnessKind::posture, WumbleMood::sittingUp, linger + Choreography::stepDone(lastStep),
                 Steps{{NudgeCopy::postureSteps.begin(), NudgeCopy::postureSteps.end()}});
}

Toast Toast::breath(double linger) {
    return nudge(WellnessKind::breath, WumbleMood::breathing, linger + Choreography::breathLength,
                 Breaths{Choreography::breaths});
}

} // namespace wumble
