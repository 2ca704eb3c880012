#include "Quietlark/Platform/Linux/Video/V4L2Cameras.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>

namespace quietlark {

namespace {

/// They hold cameras open to know them; whether they also take pictures is told by the server itself.
constexpr std::array<std::string_view, 3> videoServers{"pipewire", "wireplumber", "pipewire-media-"};

constexpr std::chrono::microseconds longestLook{800};

} // namespace

V4L2Cameras::V4L2Cameras(std::filesystem::path deviceFolder, std::filesystem::path processFolder)
    : processFolder_(std::move(processFolder)), processes_(processFolder_),
      devices_(std::move(deviceFolder)) {
    beginLook();
}

void V4L2Cameras::refresh() {
    if (devices_.takeWhetherChanged()) {
        beginLook();
    }
    const auto end = std::chrono::steady_clock::now() + longestLook;
    while (isLooking_ && std::chrono::steady_clock::now() < end) {
        if (toLookAt_.empty()) {
            endLook(false);
        } else if (holdsCamera(toLookAt_.back())) {
            endLook(true);
        } else {
            toLookAt_.pop_back();
        }
    }
}

void V4L2Cameras::beginLook() {
    if (!devices_.hasDevices()) {
        endLook(false);
        return;
    }
    isLooking_ = true;
    toLookAt_ = processes_.ofThisPerson();
    // Whoever opens a camera has mostly been started lately, and the list is read from its end.
    std::ranges::sort(toLookAt_);
}

void V4L2Cameras::endLook(bool isHeld) {
    isLooking_ = false;
    hasLooked_ = true;
    isHeld_ = isHeld;
    toLookAt_.clear();
}

bool V4L2Cameras::holdsCamera(int pid) const {
    std::error_code failed;
    std::filesystem::directory_iterator entry(processFolder_ / std::to_string(pid) / "fd", failed);
    for (const std::filesystem::directory_iterator last; !failed && entry != last; entry.increment(failed)) {
        std::error_code isGone;
        const std::filesystem::path file = std::filesystem::read_symlink(entry->path(), isGone);
        if (!isGone && devices_.isDevice(file)) {
            return std::ranges::find(videoServers, processes_.name(pid)) == videoServers.end();
        }
    }
    return false;
}

} // namespace quietlark
