#pragma once

#include "Quietlark/Platform/Linux/Wayland/WaylandConnection.h"
#include "Quietlark/Platform/Linux/Wayland/WaylandOutputs.h"
#include "Quietlark/Platform/WindowSystem.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

struct zwlr_foreign_toplevel_manager_v1;
struct zwlr_foreign_toplevel_handle_v1;

namespace quietlark {

/// The windows that a compositor tells every client about. It keeps their places to itself: all that is known is
/// which of them fill a screen.
class WaylandToplevels {
public:
    WaylandToplevels();
    ~WaylandToplevels();

    void take(const WaylandGlobal& global);

    std::optional<AppWindow> front() const;

    /// In the order in which they were opened, the front one last.
    std::vector<AppWindow> windows() const;

    /// The screens that windows of this class fill.
    std::vector<wumble::Rect> rectangles(const std::string& windowClass, const WaylandOutputs& outputs) const;

    /// Without effect for one that is gone.
    void activate(const AppWindow& window, wl_seat* seat) const;

private:
    struct Toplevel;

    void add(zwlr_foreign_toplevel_handle_v1* handle);
    void remove(const Toplevel& toplevel);

    WaylandObject<zwlr_foreign_toplevel_manager_v1> manager_;
    std::vector<std::unique_ptr<Toplevel>> toplevels_;
    std::uint64_t lastId_ = 0;
};

} // namespace quietlark
