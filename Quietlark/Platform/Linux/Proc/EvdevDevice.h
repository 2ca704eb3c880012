#pragma once

#include "WumbleCore/Storage/FileDescriptor.h"

#include <functional>
#include <optional>
#include <string>

struct input_event;

namespace quietlark {

/// One keyboard or mouse as the kernel tells of it. Only keys and buttons are listened to, not the pointer's way.
class EvdevDevice {
public:
    enum class Press { key, leftButton, rightButton };

    /// Gets each press with the main loop's time.
    using PressReader = std::function<void(Press, double time)>;

    /// Absent when it may not be read.
    static std::optional<EvdevDevice> open(const std::string& path);

    /// Takes what has come, up to a limit. False when the device is gone.
    bool read(double uptime, const PressReader& reader);

    bool isHeld(Press button) const { return button == Press::leftButton ? leftHeld_ : rightHeld_; }

private:
    explicit EvdevDevice(wumble::FileDescriptor file);

    void take(const input_event& event, double uptime, const PressReader& reader);
    void lookAtButtons();
    double timeOf(const input_event& event, double uptime) const;

    wumble::FileDescriptor file_;
    bool tellsTime_ = false; ///< by a clock that is known
    bool leftHeld_ = false;
    bool rightHeld_ = false;
};

} // namespace quietlark
