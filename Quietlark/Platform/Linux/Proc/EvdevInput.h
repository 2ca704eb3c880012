#pragma once

#include "Quietlark/Platform/Linux/Proc/EvdevDevice.h"
#include "WumbleCore/Storage/FileDescriptor.h"

#include <map>
#include <optional>
#include <string>

namespace quietlark {

/// Keys and buttons from the kernel, where this person may read its input devices. Only when something was pressed
/// is kept, never what. Nothing wakes this program: devices are read once in a round.
class EvdevInput {
public:
    explicit EvdevInput(std::string folder = "/dev/input");

    void refresh(double uptime);

    /// Seconds at the last refresh; absent while no device is readable, and before the first press.
    std::optional<double> secondsSinceKeyDown() const { return since(_lastKeyDown); }
    std::optional<double> secondsSinceLeftDown() const { return since(_lastLeftDown); }
    std::optional<double> secondsSinceRightDown() const { return since(_lastRightDown); }
    bool leftHeld() const { return isHeld(EvdevDevice::Press::leftButton); }
    bool rightHeld() const { return isHeld(EvdevDevice::Press::rightButton); }

private:
    void watchFolder();
    bool hasFolderChanged();
    void lookForDevices();
    void note(EvdevDevice::Press press, double time);
    bool isHeld(EvdevDevice::Press button) const;
    std::optional<double> since(std::optional<double> moment) const;

    std::string _folder;
    wumble::FileDescriptor _changes;
    std::map<std::string, EvdevDevice> _devices;
    std::optional<double> _lookedAt;
    std::optional<double> _lastKeyDown;
    std::optional<double> _lastLeftDown;
    std::optional<double> _lastRightDown;
    double _uptime = 0;
};

} // namespace quietlark
