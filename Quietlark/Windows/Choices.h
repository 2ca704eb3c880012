#pragma once

#include "WumbleCore/Words/Format.h"

#include <QStringList>

#include <algorithm>
#include <vector>

namespace quietlark {

/// "20 min" for each length in seconds.
inline QStringList durations(const std::vector<double>& choices) {
    QStringList words;
    for (const double seconds : choices) {
        words.append(QString::fromStdString(wumble::Format::duration(seconds)));
    }
    return words;
}

/// "every 20 min" for each.
inline QStringList everySoOften(const std::vector<double>& choices) {
    QStringList words = durations(choices);
    for (QString& each : words) {
        each.prepend(QStringLiteral("every "));
    }
    return words;
}

/// The place of a value among the choices; behind the last where it isn't among them.
template <class Choices, class Value> int placeOf(const Choices& choices, const Value& value) {
    return static_cast<int>(std::ranges::find(choices, value) - std::ranges::begin(choices));
}

} // namespace quietlark
