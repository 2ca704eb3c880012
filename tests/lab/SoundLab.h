#pragma once

#include "tests/lab/LabProcess.h"
#include "tests/support/TemporaryFolder.h"

#include <memory>
#include <string>
#include <vector>

namespace quietlark::lab {

/// A sound and video server of a test's own, with speakers and a microphone, in a folder of its own that is also the
/// test's XDG_RUNTIME_DIR.
class SoundLab {
public:
    SoundLab();
    ~SoundLab();

    /// Starts what isn't running; whether the server answers.
    bool start();

    /// Ends all of it.
    void stop();

    /// Ends what joins streams with speakers: the server still takes them, and they wait.
    void endRouting();

    /// To all of the servers: SIGSTOP and SIGCONT freeze and thaw.
    void signal(int number) const;

    Environment environment() const;
    std::unique_ptr<LabProcess> run(const std::vector<std::string>& command) const;

    /// The number of the video server's node of this name; empty when there is none.
    std::string nodeID(const std::string& name) const;

private:
    bool answers() const;

    wumble::test::TemporaryFolder folder_;
    std::string bus_; ///< the session manager of the servers doesn't start without one
    std::vector<std::unique_ptr<LabProcess>> servers_;
    LabProcess* router_ = nullptr; ///< one of them
};

} // namespace quietlark::lab
