#pragma once

#include "WumbleCore/Foundation/UUID.h"
#include "WumbleCore/Life/Recap.h"

#include <optional>
#include <string>

namespace quietlark {

/// The recap at which the crew opens.
struct CrewAnchor {
    wumble::Recap::Period period = wumble::Recap::Period::week;
    wumble::Date date; ///< any moment of it

    bool operator==(const CrewAnchor&) const = default;
};

/// A request to the settings window to show a page.
struct SettingsTurn {
    std::string page;
    std::optional<std::string> row; ///< to scroll to; absent: the top
    std::optional<CrewAnchor> crew;
    wumble::UUID id = wumble::UUID::random(); ///< so that the same request made again is a change

    bool operator==(const SettingsTurn&) const = default;
};

} // namespace quietlark
