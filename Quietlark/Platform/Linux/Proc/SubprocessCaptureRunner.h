#pragma once

#include "Quietlark/Platform/CaptureLogRunner.h"

#include <string>
#include <thread>
#include <vector>

namespace quietlark {

/// Takes the lines of the capture log from programs: one that goes on writing, and one that writes what was and ends.
class SubprocessCaptureRunner final : public CaptureLogRunner {
public:
    using Command = std::vector<std::string>; ///< the program, found by the path, and its arguments

    /// A look back that takes longer is given up.
    static constexpr double longestLookBack = 10;

    SubprocessCaptureRunner(Command stream, Command lookBack);
    ~SubprocessCaptureRunner() override;
    SubprocessCaptureRunner(const SubprocessCaptureRunner&) = delete;
    SubprocessCaptureRunner& operator=(const SubprocessCaptureRunner&) = delete;

    /// What is given is called on a thread of the stream's own, and may not call this object. Ends the stream
    /// before, if there is one.
    bool launch(Received received, Ended ended) override;

    /// Absent too when the program fails.
    std::optional<std::string> lookBack() override;

    void terminate() override;

private:
    Command stream_;
    Command lookBack_;
    int stop_ = -1; ///< an event that ends the reading
    std::thread reader_;
};

} // namespace quietlark
