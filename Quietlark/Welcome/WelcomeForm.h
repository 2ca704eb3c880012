#pragma once

#include "Quietlark/Model/AppModel.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quietlark {

/// What the welcome asks: a rhythm of breaks, with a few choices for each part of it. It begins with what the settings
/// have.
class WelcomeForm {
public:
    explicit WelcomeForm(const wumble::WumbleSettings& settings);

    /// The choices in seconds, ascending; what the settings have is among them.
    const std::vector<double>& quickEvery() const { return quickEvery_; }
    const std::vector<double>& quickLengths() const { return quickLengths_; }
    const std::vector<double>& longLengths() const { return longLengths_; }
    static constexpr std::array<wumble::Counter, 3> nudgeChoices{0, 1, 2};

    /// As many quick breaks lie between two long ones whatever is chosen.
    void chooseQuickEvery(double seconds);
    void chooseQuickLength(double seconds);
    void chooseLongLength(double seconds);
    void chooseNudges(wumble::Counter count);

    const WelcomeRhythm& rhythm() const { return rhythm_; }

    /// Whether anything was chosen; the settings stay as they are otherwise.
    bool isTouched() const { return touched_; }

    /// "45 sec to rest your eyes"
    std::string quickSummary() const;
    /// "5 min to stand up, about every 1 hr"
    std::string longSummary() const;

private:
    WelcomeRhythm rhythm_;
    std::vector<double> quickEvery_;
    std::vector<double> quickLengths_;
    std::vector<double> longLengths_;
    bool touched_ = false;
};

namespace WelcomeWords {

inline constexpr std::string_view window = "Welcome to Quietlark";
inline constexpr std::string_view hello = "Hi, I'm Wumble!";
inline constexpr std::string_view introduction = "I'll remind you to rest your eyes and stretch now and "
                                                 "then. Every break we take together shows a little more of "
                                                 "me: eyes, a smile, tiny paws, and more.";
inline constexpr std::string_view pickARhythm = "Pick a rhythm";
inline constexpr std::string_view quickBreaks = "Quick breaks";
inline constexpr std::string_view longBreaks = "Long breaks";
inline constexpr std::string_view customize = "customize";
inline constexpr std::string_view customizeHint = "Shows the break lengths and nudges";
inline constexpr std::string_view fewerOptions = "fewer options";
inline constexpr std::string_view fewerOptionsHint = "Hides the break lengths and nudges";
inline constexpr std::string_view later = "You can change any of this later in Settings.";
inline constexpr std::string_view login = "Open Quietlark when I log in";
inline constexpr std::string_view loginDetail = "So your breaks keep their rhythm from day to day.";
inline constexpr std::string_view startBreaks = "Start breaks";
inline constexpr std::string_view lookAround = "Take a look around";
inline constexpr std::string_view previewABreak = "Preview a break";

struct Row {
    std::string_view title;
    std::string_view detail;
};
inline constexpr Row quickLength{"Quick break length", "Time to rest your eyes"};
inline constexpr Row longLength{"Long break length", "Time to stand up"};
inline constexpr Row nudges{"Nudges in between", "Blink, sit up, breathe"};

} // namespace WelcomeWords

} // namespace quietlark
