#pragma once

#include "tests/lab/LabProcess.h"
#include "tests/support/TemporaryFolder.h"

#include <memory>
#include <string>
#include <vector>

namespace quietlark::lab {

/// A Wayland compositor with two screens that nobody sees, in a runtime folder of its own. It refuses to be run by
/// root, and is then run by somebody else.
class SwayCompositor {
public:
    SwayCompositor();

    /// Whether it came up; waits for that.
    bool isUp() const { return isUp_; }

    /// As in WAYLAND_DISPLAY.
    std::string socket() const { return folder_ / "wayland-1"; }

    /// Ends it at once, as a crash would; `start` begins another one on the same socket.
    void kill();
    void start();

    /// A client of it.
    std::unique_ptr<LabProcess> open(const std::vector<std::string>& command) const;

    /// A short command's output.
    std::string run(const std::vector<std::string>& command) const;

    LabProcess& process() { return *process_; }

private:
    Environment environment() const;

    wumble::test::TemporaryFolder folder_;
    std::unique_ptr<LabProcess> process_;
    bool isUp_ = false;
};

} // namespace quietlark::lab
