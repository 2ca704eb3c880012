#include "Quietlark/Welcome/WelcomeForm.h"

#include "WumbleCore/Words/Format.h"

#include <algorithm>
#include <span>

namespace quietlark {

namespace {

constexpr std::array quickChoices{1200.0, 1800.0, 2700.0};
constexpr std::array quickLengthChoices{20.0, 30.0, 45.0, 60.0};
constexpr std::array longLengthChoices{180.0, 300.0, 600.0};

/// Where the settings have no such number.
constexpr wumble::Counter usualLongEvery = 3;

std::vector<double> withCurrent(std::span<const double> choices, double current) {
    std::vector<double> all(choices.begin(), choices.end());
    if (current > 0 && std::ranges::find(all, current) == all.end()) {
        all.insert(std::ranges::upper_bound(all, current), current);
    }
    return all;
}

} // namespace

WelcomeForm::WelcomeForm(const wumble::WumbleSettings& settings)
    : rhythm_{.quickEvery = settings.workInterval,
              .quickLength = settings.shortBreakDuration,
              .longEvery = settings.longBreakEvery().value_or(usualLongEvery),
              .longLength = settings.longBreakDuration,
              .nudges = settings.nudgesBetween},
      quickEvery_(withCurrent(quickChoices, rhythm_.quickEvery)),
      quickLengths_(withCurrent(quickLengthChoices, rhythm_.quickLength)),
      longLengths_(withCurrent(longLengthChoices, rhythm_.longLength)) {}

void WelcomeForm::chooseQuickEvery(double seconds) {
    rhythm_.quickEvery = seconds;
    touched_ = true;
}

void WelcomeForm::chooseQuickLength(double seconds) {
    rhythm_.quickLength = seconds;
    touched_ = true;
}

void WelcomeForm::chooseLongLength(double seconds) {
    rhythm_.longLength = seconds;
    touched_ = true;
}

void WelcomeForm::chooseNudges(wumble::Counter count) {
    rhythm_.nudges = count;
    touched_ = true;
}

std::string WelcomeForm::quickSummary() const {
    return wumble::Format::duration(rhythm_.quickLength) + " to rest your eyes";
}

std::string WelcomeForm::longSummary() const {
    const double apart = rhythm_.quickEvery * static_cast<double>(rhythm_.longEvery);
    return wumble::Format::duration(rhythm_.longLength) + " to stand up, about every " +
           wumble::Format::duration(apart);
}

} // namespace quietlark
