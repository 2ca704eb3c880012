#pragma once

#include "Quietlark/Platform/Linux/Wayland/WaylandConnection.h"
#include "WumbleCore/Foundation/Geometry.h"

#include <memory>
#include <optional>
#include <vector>

struct zxdg_output_manager_v1;
struct zxdg_output_v1;

namespace quietlark {

/// The screens of a compositor, in the points that its windows are laid out in.
class WaylandOutputs {
public:
    WaylandOutputs();
    ~WaylandOutputs();

    void take(const WaylandGlobal& global);
    void lose(std::uint32_t name);

    /// Of all screens that are switched on.
    std::vector<wumble::Rect> frames() const;

    /// Absent for one that is gone or switched off.
    std::optional<wumble::Rect> frame(const wl_output* object) const;

private:
    struct Output;

    void describe(Output& output);

    WaylandObject<zxdg_output_manager_v1> descriptions_;
    std::vector<std::unique_ptr<Output>> outputs_;
};

} // namespace quietlark
