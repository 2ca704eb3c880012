#pragma once

#include "tests/lab/LabProcess.h"

#include <memory>
#include <string>
#include <vector>

namespace quietlark::lab {

/// An X server without a screen to look at, on a display of its own.
class XServer {
public:
    XServer();

    std::string display() const { return ":" + number_; }
    Environment environment() const { return {{"DISPLAY", display()}}; }
    LabProcess& process() { return *process_; }

    /// Ends it at once, as a crash would, with everything that lives on it.
    void kill();

    /// Begins another one on the same display, when the first is gone.
    void restart();

    /// Runs a short command on it to its end and gives what it wrote.
    std::string run(const std::vector<std::string>& command) const;

private:
    void start(const std::vector<std::string>& display);

    std::string number_;
    std::unique_ptr<LabProcess> process_;
};

} // namespace quietlark::lab
