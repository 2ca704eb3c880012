#pragma once

#include "WumbleCore/Foundation/Date.h"
#include "WumbleCore/Life/WumbleDay.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <utility>

/// What a break screen says: a title that tells what to do, and a line from the pet.
namespace wumble::BreakWords {

/// What must be so before an entry may be used.
enum class Needs {
    nothing,
    day,
    night,
    eyes,         ///< the pet has opened its eyes
    keepsake,     ///< the pet has brought home its keepsake
    keepsakeHeld, ///< and it is one that can be hugged
};

struct Entry {
    std::string_view text;
    Needs needs = Needs::nothing;

    bool operator==(const Entry&) const = default;
};

/// Entries that are dealt from one bag.
struct Table {
    std::string_view name;
    std::span<const Entry> entries;
};

/// A line that takes the place of the pet's line once a day. Variants of one moment share its name.
struct Moment {
    std::string_view name;
    std::string_view line;

    bool operator==(const Moment&) const = default;
};

struct Words {
    std::string title;
    std::string line;

    bool operator==(const Words&) const = default;
};

/// The break that needs words.
struct Context {
    bool isLong = false;
    Date date; ///< now
    WumbleDay day;
    bool afterCall = false; ///< it was held back by a call that has ended
    bool moments = true;    ///< false for a preview, which uses up no moment

    bool operator==(const Context&) const = default;
};

/// Stands in a line for the noun of the day's keepsake.
inline constexpr std::string_view keepsakeSlot = "{keepsake}";

inline constexpr std::array quickTitles{
    Entry{"Look at something far away"},
    Entry{"Let your eyes go far"},
    Entry{"Look out a window", Needs::day},
    Entry{"Look across the room", Needs::night},
};

inline constexpr std::array quickLines{
    Entry{"Wumble's looking too.", Needs::eyes},
    Entry{"Wumble's already picked something. It won't say what."},
    Entry{"Wumble is very good at staring into the distance. It practices a lot.", Needs::eyes},
    Entry{"Wumble's looking far away, its {keepsake} tucked in close.", Needs::keepsakeHeld},
    Entry{"Even the stickiest problem looks smaller from far away."},
    Entry{"Nothing out there needs a reply."},
    Entry{"Good dough needs a rest. So do your eyes."},
    Entry{"You don't have to hold your shape all day."},
};

inline constexpr std::array longTitles{
    Entry{"Time to move"},
    Entry{"Have a good stretch"},
    Entry{"Go get some water"},
    Entry{"Wander off for a bit"},
};

inline constexpr std::array longLines{
    Entry{"Wumble's stretching. It's mostly just getting taller."},
    Entry{"Wumble will keep your spot. It's very good at sitting."},
    Entry{"Even the {keepsake} is getting a stretch.", Needs::keepsake},
    Entry{"Your back says thanks in advance."},
    Entry{"Nothing's on fire. Wumble checked."},
    Entry{"Go be a person for a bit. The screen will wait."},
    Entry{"Stretch like warm wumble: slowly, and as far as you like."},
    Entry{"Soft is a superpower. Ask any wumble."},
};

/// The tables of a kind of break.
struct Tables {
    Table titles;
    Table lines;
};
inline constexpr Tables quickTables{{"quickTitles", quickTitles}, {"quickLines", quickLines}};
inline constexpr Tables longTables{{"longTitles", longTitles}, {"longLines", longLines}};

inline constexpr Moment noEyesQuick{"noEyes", "Look far for both of you. Wumble's eyes aren't open yet."};
inline constexpr Moment noEyesLong{"noEyes", "Move for both of you. Wumble's still waking up."};
inline constexpr Moment keepsakeNext{"keepsakeNext",
                                     "Wumble's hiding something. You'll see when this is done."};
inline constexpr Moment afterCallHugged{"afterCall",
                                        "Call's over. Wumble hugged its {keepsake} the whole time."};
inline constexpr Moment afterCallHummed{"afterCall", "Call's over. Wumble hummed through the whole thing."};
inline constexpr Moment friday{"friday", "It's Friday. Wumble can feel it."};

/// The title and the line for any place that shows a break without a picker.
inline constexpr std::pair signature{quickTitles[0].text, quickLines[0].text};

/// Every line of the pet but for the moments, the quick ones first, their slots unfilled.
inline constexpr auto allLines = [] {
    std::array<std::string_view, quickLines.size() + longLines.size()> texts{};
    const auto afterQuick = std::ranges::transform(quickLines, texts.begin(), &Entry::text).out;
    std::ranges::transform(longLines, afterQuick, &Entry::text);
    return texts;
}();

/// The text with every slot filled.
std::string filled(std::string_view text, WumbleKeepsake keepsake);

} // namespace wumble::BreakWords
