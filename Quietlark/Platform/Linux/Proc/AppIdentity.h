#pragma once

#include "Quietlark/Platform/AppRef.h"

#include <optional>
#include <string>

namespace quietlark {

/// What a service says of one of its clients. Whatever is missing is found out by the process.
struct AppHints {
    int pid = 0;                      ///< 0 where the service doesn't tell
    std::optional<std::string> appID; ///< an identifier: of a desktop entry, a flatpak, a portal
    std::optional<std::string> windowClass;
    std::optional<std::string> name; ///< as the program calls itself
    /// The name of its file, by its own word. A process of that number that runs another file is somebody else: inside
    /// a sandbox processes are numbered anew.
    std::optional<std::string> binary;
};

/// Who a process is to its person: its desktop entry, its name, its identifiers.
class AppIdentity {
public:
    virtual ~AppIdentity() = default;

    /// Never fails: with nothing to go by, the name is empty and there is no identifier.
    virtual AppRef identify(const AppHints& hints) = 0;
};

} // namespace quietlark
