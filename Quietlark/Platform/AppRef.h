#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// A program as the person knows it.
struct AppRef {
    int pid = 0;                         ///< 0 where the platform names the program but not its process
    std::string name;                    ///< to show; empty when nothing is known
    std::optional<std::string> bundleID; ///< what lists of programs in the settings hold
    std::vector<std::string> aliases;    ///< other identifiers it goes by here

    bool operator==(const AppRef&) const = default;
};

} // namespace quietlark
