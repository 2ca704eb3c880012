#pragma once

#include "WumbleCore/Foundation/EnumTexts.h"

#include <array>

namespace wumble {

/// How a note comes in: it slaps down, settles, opens like an eye or hangs from a string.
enum class NoteEntrance { slap, settle, eye, hang };

template <> struct EnumTexts<NoteEntrance> {
    static constexpr std::array<std::pair<NoteEntrance, std::string_view>, 4> table{{
        {NoteEntrance::slap, "slap"},
        {NoteEntrance::settle, "settle"},
        {NoteEntrance::eye, "eye"},
        {NoteEntrance::hang, "hang"},
    }};
};

/// Seconds that a note takes to come in and to go; with reduced motion it is done no later.
double arrivalLength(NoteEntrance entrance);
double exitLength(NoteEntrance entrance);

/// How a note is drawn at one moment. At rest by default.
struct NotePose {
    double scale = 1;
    double air = 0;     ///< points by which its shadow is lifted
    double opacity = 1; ///< 0 to 1
    double tilt = 0;    ///< degrees
    double drop = 0;    ///< points down
    double wumble = 1;  ///< the pet's own scale
    double squash = 1;  ///< scale of its height
    double shut = 0;    ///< lids: 0, open, to 1, shut

    bool operator==(const NotePose&) const = default;

    /// `t` seconds after it arrived. A note that covers another is there at once and doesn't fade in. The
    /// string of a hanging note is drawn by who holds it: its pose is that of rest.
    static NotePose arriving(double t, bool covering, NoteEntrance entrance, bool reduceMotion);

    /// `t` seconds after it began to leave; before that at rest.
    static NotePose leaving(double t, NoteEntrance entrance, bool reduceMotion);
};

} // namespace wumble
