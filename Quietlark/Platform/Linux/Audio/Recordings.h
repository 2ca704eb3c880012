#pragma once

#include "Quietlark/Platform/Linux/Proc/AppIdentity.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// What a sound server's client says of its program, on its connection or on one of its streams.
struct SoundClient {
    int pid = 0; ///< 0 where it doesn't tell
    std::optional<std::string> appID;
    std::optional<std::string> name;
    std::optional<std::string> binary;
    bool isSandboxed = false; ///< its own word on its process is then that of another numbering

    bool operator==(const SoundClient&) const = default;
};

/// A stream that takes sound from a source.
struct RecordingStream {
    std::uint32_t client = 0;
    std::uint32_t source = 0;
    bool isPaused = false;
    bool isLevelMeter = false;
    bool takesWhatIsPlayed = false;
    bool isPartOfFilter = false; ///< which gives what it hears to whoever records from it
    SoundClient program;

    bool operator==(const RecordingStream&) const = default;
};

/// What is known of a sound server's recordings, by the server's numbers.
struct Recordings {
    std::map<std::uint32_t, SoundClient> clients;
    std::map<std::uint32_t, RecordingStream> streams;
    std::map<std::uint32_t, bool>
        isMonitor; ///< of each source: whether it gives what the machine itself plays

    /// The programs that listen to a microphone now, in the order of their streams, without `ownProcess`. A stream
    /// on a source that isn't known doesn't count: it hears nothing. Nor do the server's own, that pass a microphone
    /// on or take the echo out of it.
    std::vector<AppHints> listening(int ownProcess) const;
};

} // namespace quietlark
