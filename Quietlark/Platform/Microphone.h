#pragma once

#include "Quietlark/Platform/AppRef.h"
#include "Quietlark/Platform/Source.h"

#include <optional>
#include <vector>

namespace quietlark {

/// Who records from a microphone. Recordings of what the machine itself plays, level meters and paused streams
/// don't count.
class Microphone : public Source {
public:
    /// Each program once. Absent when no sound server answers.
    virtual std::optional<std::vector<AppRef>> recordingApps() const = 0;

    /// Whether the sound hardware records for anybody, where nobody says for whom.
    virtual bool physicalMicrophoneRunning() const = 0;
};

} // namespace quietlark
