#pragma once

#include "Quietlark/Platform/Linux/Proc/AppIdentity.h"

namespace quietlark::lab {

/// Tells back what it was asked about.
class NamedByProcess final : public AppIdentity {
public:
    AppRef identify(const AppHints& hints) override {
        return {.pid = hints.pid, .name = hints.name.value_or(""), .bundleID = hints.appID, .aliases = {}};
    }
};

} // namespace quietlark::lab
