#pragma once

#include "WumbleCore/Foundation/Date.h"
#include "WumbleCore/Words/Toast.h"

#include <QProperty>

#include <optional>

namespace quietlark {

/// What the card says in place of its buttons once one of them was pressed.
struct HeadsUpAnswer {
    static constexpr double morphLength = 0.325; ///< seconds in which the card turns into the answer

    std::optional<wumble::Toast> toast; ///< absent: nothing was pressed
    wumble::Date since;

    bool operator==(const HeadsUpAnswer&) const = default;
};

/// The pet's greeting on the card.
struct WumbleHello {
    std::optional<wumble::Date> started; ///< another time greets anew; absent: no greeting yet
    double after = 0;                    ///< seconds that it waits for the card to land

    bool operator==(const WumbleHello&) const = default;
};

} // namespace quietlark
