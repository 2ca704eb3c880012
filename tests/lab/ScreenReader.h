#pragma once

#include "tests/lab/PrivateBus.h"
#include "tests/lab/ScreenWindows.h"

#include <memory>
#include <optional>
#include <string>

namespace quietlark::lab {

/// What a screen reader knows of the programs on a bus: which controls are to be seen, and where.
class ScreenReader {
public:
    /// Whether what it needs is there.
    static bool isInstalled();

    /// The bus must outlive it. Programs have to be started after it, with `environment`.
    ScreenReader(const PrivateBus& session, const XServer& server);

    /// What a program needs to be read.
    Environment environment() const;

    /// Where the control of that name is; absent while there is none that can be seen.
    std::optional<WindowPlace> find(const std::string& name) const;

    /// Clicks on the control of that name as soon as it is to be seen. False when it never is.
    bool press(const std::string& name) const;

private:
    const PrivateBus& session_;
    const XServer& server_;
    wumble::test::TemporaryFolder folder_;
    std::unique_ptr<LabProcess> bus_;
    std::unique_ptr<LabProcess> reader_;
};

} // namespace quietlark::lab
