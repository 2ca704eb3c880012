#include "Quietlark/Platform/Linux/Proc/EvdevInput.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <utility>

#include <sys/inotify.h>

namespace quietlark {

namespace {

/// How often a folder that isn't there is looked for.
constexpr double folderInterval = 5;

void keepLatest(std::optional<double>& kept, double time) { kept = std::max(kept.value_or(time), time); }

} // namespace

EvdevInput::EvdevInput(std::string folder) : folder_(std::move(folder)) {}

/// A device appears before this person is let near it: the change of its rights counts too.
void EvdevInput::watchFolder() {
    wumble::FileDescriptor changes(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    const std::uint32_t mask = IN_CREATE | IN_ATTRIB | IN_DELETE | IN_MOVED_TO | IN_DELETE_SELF | IN_ONLYDIR;
    if (changes.isOpen() && ::inotify_add_watch(changes.get(), folder_.c_str(), mask) >= 0) {
        changes_ = std::move(changes);
    }
}

bool EvdevInput::hasFolderChanged() {
    std::array<char, 4096> buffer{};
    bool hasChanged = false;
    while (::read(changes_.get(), buffer.data(), buffer.size()) > 0) {
        hasChanged = true;
    }
    return hasChanged;
}

void EvdevInput::lookForDevices() {
    std::map<std::string, EvdevDevice> found;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder_, error)) {
        const std::string name = entry.path().filename().string();
        if (!name.starts_with("event")) {
            continue;
        }
        if (auto known = devices_.extract(name)) {
            found.insert(std::move(known));
        } else if (auto device = EvdevDevice::open(entry.path().string())) {
            found.emplace(name, std::move(*device));
        }
    }
    devices_ = std::move(found);
}

void EvdevInput::refresh(double uptime) {
    uptime_ = uptime;
    const auto reader = [this](EvdevDevice::Press press, double time) { note(press, time); };
    for (auto device = devices_.begin(); device != devices_.end();) {
        device = device->second.read(uptime, reader) ? std::next(device) : devices_.erase(device);
    }
    if (!changes_.isOpen() && (!lookedAt_ || uptime - *lookedAt_ >= folderInterval)) {
        lookedAt_ = uptime;
        watchFolder();
        lookForDevices();
    } else if (changes_.isOpen() && hasFolderChanged()) {
        lookForDevices();
    }
}

void EvdevInput::note(EvdevDevice::Press press, double time) {
    switch (press) {
    case EvdevDevice::Press::key: keepLatest(lastKeyDown_, time); break;
    case EvdevDevice::Press::leftButton: keepLatest(lastLeftDown_, time); break;
    case EvdevDevice::Press::rightButton: keepLatest(lastRightDown_, time); break;
    }
}

bool EvdevInput::isHeld(EvdevDevice::Press button) const {
    return std::ranges::any_of(devices_, [&](const auto& device) { return device.second.isHeld(button); });
}

std::optional<double> EvdevInput::since(std::optional<double> moment) const {
    return moment && !devices_.empty() ? std::optional(uptime_ - *moment) : std::nullopt;
}

} // namespace quietlark
