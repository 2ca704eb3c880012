#include "Quietlark/Platform/Linux/Video/OpenDevices.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace quietlark {

namespace {

bool isDeviceName(std::string_view name) {
    constexpr std::string_view beginning = "video";
    const std::string_view number = name.substr(std::min(name.size(), beginning.size()));
    return name.starts_with(beginning) && !number.empty() &&
           std::ranges::all_of(number, [](char digit) { return digit >= '0' && digit <= '9'; });
}

/// Chips that turn pictures from one form into another go by the same names as cameras, and players use them. The
/// device manager knows which are which; where it doesn't say, it is a camera.
bool takesNoPictures(const std::filesystem::path& device) {
    struct stat file {};
    if (stat(device.c_str(), &file) != 0) {
        return false;
    }
    std::ifstream record("/run/udev/data/c" + std::to_string(major(file.st_rdev)) + ":" +
                         std::to_string(minor(file.st_rdev)));
    constexpr std::string_view capabilities = "E:ID_V4L_CAPABILITIES=";
    for (std::string line; std::getline(record, line);) {
        if (line.starts_with(capabilities)) {
            return line.find(":capture:") == std::string::npos;
        }
    }
    return false;
}

} // namespace

OpenDevices::OpenDevices(std::filesystem::path folder)
    : folder_(std::move(folder)), events_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    inotify_add_watch(events_, folder_.c_str(), IN_CREATE | IN_DELETE | IN_MOVED_TO);
    std::error_code failed;
    for (std::filesystem::directory_iterator entry(folder_, failed), last; !failed && entry != last;
         entry.increment(failed)) {
        follow(entry->path().filename().string());
    }
}

OpenDevices::~OpenDevices() {
    if (events_ >= 0) {
        close(events_);
    }
}

void OpenDevices::follow(const std::string& name) {
    if (!isDeviceName(name) || takesNoPictures(folder_ / name)) {
        return;
    }
    const int watch = inotify_add_watch(events_, (folder_ / name).c_str(), IN_OPEN | IN_CLOSE);
    if (watch >= 0) {
        devices_[watch] = name;
    }
}

bool OpenDevices::isDevice(const std::filesystem::path& path) const {
    return path.parent_path() == folder_ &&
           std::ranges::any_of(devices_, [name = path.filename().string()](const auto& device) {
               return device.second == name;
           });
}

bool OpenDevices::takeWhetherChanged() {
    bool isChanged = false;
    alignas(inotify_event) std::array<char, 4096> buffer{};
    // A folder of devices is quiet; if it isn't, the rest is read next time.
    constexpr int mostReads = 16;
    for (int reads = 0; reads < mostReads; ++reads) {
        const ssize_t count = events_ < 0 ? -1 : read(events_, buffer.data(), buffer.size());
        for (ssize_t offset = 0; offset < count;) {
            const auto* event = reinterpret_cast<const inotify_event*>(buffer.data() + offset);
            offset += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            if ((event->mask & (IN_CREATE | IN_MOVED_TO)) != 0 && event->len > 0) {
                follow(event->name);
            }
            if ((event->mask & IN_IGNORED) != 0) {
                devices_.erase(event->wd);
            }
            isChanged |= devices_.contains(event->wd) || (event->len > 0 && isDeviceName(event->name)) ||
                         (event->mask & (IN_IGNORED | IN_Q_OVERFLOW)) != 0;
        }
        if (count <= 0) {
            break;
        }
    }
    return isChanged;
}

} // namespace quietlark
