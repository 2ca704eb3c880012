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
    std::optional<double> secondsSinceKeyDown() const { return since(lastKeyDown_); }
    std::optional<double> secondsSinceLeftDown() const { return since(lastLeftDown_); }
    std::optional<double> secondsSinceRightDown() const { return since(lastRightDown_); }
    bool leftHeld() const { return isHeld(EvdevDevice::Press::leftButton); }
    bool rightHeld() const { return isHeld(EvdevDevice::Press::rightButton); }

private:
    void watchFolder();
    bool hasFolderChanged();
    void lookForDevices();
    void note(EvdevDevice::Press press, double time);
    bool isHeld(EvdevDevice::Press button) const;
    std::optional<double> since(std::optional<double> moment) const;

    std::string folder_;
    wumble::FileDescriptor changes_;
    std::map<std::string, EvdevDevice> devices_;
    std::optional<double> lookedAt_;
    std::optional<double> lastKeyDown_;
    std::optional<double> lastLeftDown_;
    std::optional<double> lastRightDown_;
    double uptime_ = 0;
};

} // namespace quietlark
