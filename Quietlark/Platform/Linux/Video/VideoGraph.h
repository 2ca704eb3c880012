#pragma once

#include "Quietlark/Platform/Linux/Proc/AppIdentity.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace quietlark {

/// What the video server says of a thing, by its keys.
using VideoProperties = std::map<std::string, std::string, std::less<>>;

struct VideoNode {
    VideoProperties properties;
    bool isRunning = false;

    bool operator==(const VideoNode&) const = default;
};

/// A way that pictures take from one node to another.
struct VideoLink {
    std::uint32_t producer = 0;
    std::uint32_t consumer = 0;
    bool isActive = false;

    bool operator==(const VideoLink&) const = default;
};

/// What is known of the video that goes from program to program, by the server's numbers.
struct VideoGraph {
    std::map<std::uint32_t, VideoProperties> clients;
    std::map<std::uint32_t, VideoNode> nodes;
    std::map<std::uint32_t, VideoLink> links;

    bool operator==(const VideoGraph&) const = default;

    bool cameraRuns() const;

    /// The programs that get pictures of the screen now, without `ownProcess` and without the desktop itself, which
    /// draws previews of its windows this way. In the order in which they began.
    std::vector<AppHints> watchers(int ownProcess) const;
};

} // namespace quietlark
