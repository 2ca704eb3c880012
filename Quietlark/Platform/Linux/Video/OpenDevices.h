#pragma once

#include <filesystem>
#include <map>

namespace quietlark {

/// Notices when files of devices are opened and closed, and when devices come and go. It never wakes anybody: what
/// has happened waits until it is asked for.
class OpenDevices {
public:
    /// Devices are the files of `folder` whose names are "video" and a number, but for those that are known not to
    /// take pictures. Where they can't be followed, nothing ever happens.
    explicit OpenDevices(std::filesystem::path folder);
    ~OpenDevices();
    OpenDevices(const OpenDevices&) = delete;
    OpenDevices& operator=(const OpenDevices&) = delete;

    /// Whether anything has happened since the last call, or what has happened is lost.
    bool takeWhetherChanged();

    bool hasDevices() const { return !devices_.empty(); }

    /// Whether this path is one of a device that is there.
    bool isDevice(const std::filesystem::path& path) const;

private:
    void follow(const std::string& name);

    std::filesystem::path folder_;
    int events_ = -1;
    std::map<int, std::string> devices_; ///< names by the number of their watch
};

} // namespace quietlark
