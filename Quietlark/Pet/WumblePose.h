#pragma once

#include "WumbleCore/Foundation/Geometry.h"
#include "WumbleCore/Life/WumbleExpression.h"
#include "WumbleCore/Life/WumbleGesture.h"

#include <optional>
#include <variant>

namespace quietlark {

/// What the face is doing.
namespace face {

struct Expression {
    wumble::WumbleExpression expression = wumble::WumbleExpression::content;
    bool operator==(const Expression&) const = default;
};
struct Blink {
    bool operator==(const Blink&) const = default;
};
/// Eyes closed, at ease.
struct Resting {
    bool operator==(const Resting&) const = default;
};
/// Eyes half open and soft.
struct Calm {
    bool operator==(const Calm&) const = default;
};
struct Dizzy {
    bool operator==(const Dizzy&) const = default;
};

} // namespace face

using Face = std::variant<face::Expression, face::Blink, face::Resting, face::Calm, face::Dizzy>;

/// Everything that is drawn differently from one moment to the next. At rest by default.
struct WumblePose {
    Face face = face::Expression{};
    double breathe = 0; ///< -1, breathed in and tall, to 1, breathed out and low
    double puff = 0;    ///< how far it is inflated, 0 to 1
    double lids = 0;    ///< 0, open, to 1, down
    bool showEyes = true;
    double tall = 0;    ///< stretch upwards; 1 is a full stretch, below 0 a crouch
    double look = 0;    ///< gaze to the right, -1 to 1
    double lookY = 0;   ///< gaze down, -1 to 1
    double lean = 0;    ///< to the right, -1 to 1
    wumble::Point turn; ///< of the face, -1 to 1
    wumble::WumbleGesture gesture = wumble::WumbleGesture::still;
    double progress = 0; ///< of the gesture, 0 to 1
    bool hug = false;
    bool keyboard = false;
    bool headset = false;
    double talk = 0;           ///< how far the mouth is open for a word, 0 to 1
    double pull = 0;           ///< stretch by dragging, below 0 a push
    bool pointer = false;      ///< the little pointer at its side
    std::optional<double> hum; ///< phases of what floats about it, each going round from 0 to 1; absent
    std::optional<double> zzz; ///< when it isn't there
    std::optional<double> sparkles;
    std::optional<double> heart;
    double sway = 0; ///< the bend of the body: how far its top is off to the right
    double sag = 0;  ///< and how far it sinks

    bool operator==(const WumblePose&) const = default;
};

} // namespace quietlark
