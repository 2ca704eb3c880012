#pragma once

#include "Quietlark/Platform/Linux/Proc/Processes.h"
#include "Quietlark/Platform/Linux/Video/OpenDevices.h"

#include <filesystem>
#include <vector>

namespace quietlark {

/// Cameras that programs hold open by their files, past the video server. The processes are looked through only
/// after something was opened or closed, a little at each refresh.
class V4L2Cameras {
public:
    explicit V4L2Cameras(std::filesystem::path deviceFolder = "/dev",
                         std::filesystem::path processFolder = "/proc");

    /// Takes well under a millisecond, and one of processes at most while it looks through them.
    void refresh();

    /// Whether the first look is over.
    bool ready() const { return hasLooked_; }

    /// Whether a process of this person other than the video server held a camera at the last look. One that had
    /// let go of it by then doesn't count.
    bool isHeld() const { return isHeld_; }

private:
    void beginLook();
    void endLook(bool isHeld);
    bool holdsCamera(int pid) const;

    std::filesystem::path processFolder_;
    Processes processes_;
    OpenDevices devices_;
    std::vector<int> toLookAt_;
    bool isLooking_ = false;
    bool hasLooked_ = false;
    bool isHeld_ = false;
};

} // namespace quietlark
