#pragma once

#include "tests/lab/LabProcess.h"
#include "tests/lab/PrivateBus.h"

#include <memory>

namespace quietlark::lab {

/// The session manager of MATE with nothing to start, on a display of its own; needs `mate-session` and
/// `Xvfb`.
class MateSession {
public:
    /// Comes back when the manager answers on the bus.
    explicit MateSession(const PrivateBus& bus);

    /// What a program of this session has in its environment.
    const Environment& environment() const { return environment_; }

    /// Asks everybody to end, as the person does who logs out. It refuses while it is still starting.
    void logOut() const;

private:
    const PrivateBus& bus_;
    wumble::test::TemporaryFolder folder_;
    Environment environment_;
    std::unique_ptr<LabProcess> display_;
    std::unique_ptr<LabProcess> manager_;
};

} // namespace quietlark::lab
