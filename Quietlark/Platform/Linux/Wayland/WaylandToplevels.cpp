#include "Quietlark/Platform/Linux/Wayland/WaylandToplevels.h"

#include <algorithm>
#include <span>

#include <wlr-foreign-toplevel-management-unstable-v1.h>

namespace quietlark {

namespace {

constexpr std::uint32_t managerVersion = 2;

} // namespace

struct WaylandToplevels::Toplevel {
    /// What takes effect together.
    struct State {
        std::string windowClass;
        std::vector<const wl_output*> outputs;
        bool isMinimized = false;
        bool isActive = false;
        bool isFullScreen = false;
    };

    WaylandToplevels* owner = nullptr;
    std::uint64_t id = 0;
    WaylandObject<zwlr_foreign_toplevel_handle_v1> handle;
    State told;
    State state;
    bool isKnown = false; ///< once its first state has come

    static Toplevel& of(void* self) { return *static_cast<Toplevel*>(self); }

    AppWindow window() const { return {id, 0, state.windowClass}; }

    void takeFlags(const wl_array& flags) {
        const std::span states(static_cast<const std::uint32_t*>(flags.data),
                               flags.size / sizeof(std::uint32_t));
        const auto has = [states](std::uint32_t flag) {
            return std::ranges::find(states, flag) != states.end();
        };
        told.isMinimized = has(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_MINIMIZED);
        told.isActive = has(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED);
        told.isFullScreen = has(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_FULLSCREEN);
    }

    void confirm() {
        state = told;
        isKnown = true;
    }
};

WaylandToplevels::WaylandToplevels() = default;
WaylandToplevels::~WaylandToplevels() = default;

void WaylandToplevels::take(const WaylandGlobal& global) {
    using Manager = zwlr_foreign_toplevel_manager_v1;
    static constexpr zwlr_foreign_toplevel_manager_v1_listener listener{
        .toplevel =
            [](void* self, Manager*, zwlr_foreign_toplevel_handle_v1* handle) {
                static_cast<WaylandToplevels*>(self)->add(handle);
            },
        .finished = [](void* self, Manager*) { static_cast<WaylandToplevels*>(self)->manager_.reset(); }};
    if (global.interface == zwlr_foreign_toplevel_manager_v1_interface.name) {
        manager_ =
            waylandBind<Manager>(global.registry, global.name, zwlr_foreign_toplevel_manager_v1_interface,
                                 global.version, managerVersion);
        zwlr_foreign_toplevel_manager_v1_add_listener(manager_.get(), &listener, this);
    }
}

void WaylandToplevels::add(zwlr_foreign_toplevel_handle_v1* handle) {
    using Handle = zwlr_foreign_toplevel_handle_v1;
    static constexpr zwlr_foreign_toplevel_handle_v1_listener listener{
        .title = [](void*, Handle*, const char*) {},
        .app_id = [](void* self, Handle*, const char* name) { Toplevel::of(self).told.windowClass = name; },
        .output_enter = [](void* self, Handle*,
                           wl_output* output) { Toplevel::of(self).told.outputs.push_back(output); },
        .output_leave = [](void* self, Handle*,
                           wl_output* output) { std::erase(Toplevel::of(self).told.outputs, output); },
        .state = [](void* self, Handle*, wl_array* flags) { Toplevel::of(self).takeFlags(*flags); },
        .done = [](void* self, Handle*) { Toplevel::of(self).confirm(); },
        .closed = [](void* self, Handle*) { Toplevel::of(self).owner->remove(Toplevel::of(self)); },
        .parent = [](void*, Handle*, Handle*) {}};
    auto& toplevel = toplevels_.emplace_back(std::make_unique<Toplevel>());
    toplevel->owner = this;
    toplevel->id = ++lastId_;
    toplevel->handle.reset(handle);
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &listener, toplevel.get());
}

void WaylandToplevels::remove(const Toplevel& toplevel) {
    const auto place = std::ranges::find(toplevels_, &toplevel, &std::unique_ptr<Toplevel>::get);
    zwlr_foreign_toplevel_handle_v1_destroy((*place)->handle.release());
    toplevels_.erase(place);
}

std::optional<AppWindow> WaylandToplevels::front() const {
    for (const auto& toplevel : toplevels_) {
        if (toplevel->state.isActive) {
            return toplevel->window();
        }
    }
    return {};
}

std::vector<AppWindow> WaylandToplevels::windows() const {
    std::vector<AppWindow> result;
    for (const auto& toplevel : toplevels_) {
        if (toplevel->isKnown && !toplevel->state.isActive) {
            result.push_back(toplevel->window());
        }
    }
    if (const auto active = front()) {
        result.push_back(*active);
    }
    return result;
}

std::vector<wumble::Rect> WaylandToplevels::rectangles(const std::string& windowClass,
                                                       const WaylandOutputs& outputs) const {
    std::vector<wumble::Rect> result;
    for (const auto& toplevel : toplevels_) {
        const Toplevel::State& state = toplevel->state;
        if (windowClass.empty() || state.windowClass != windowClass || !state.isFullScreen ||
            state.isMinimized) {
            continue;
        }
        for (const wl_output* output : state.outputs) {
            if (const auto frame = outputs.frame(output)) {
                result.push_back(*frame);
            }
        }
    }
    return result;
}

void WaylandToplevels::activate(const AppWindow& window, wl_seat* seat) const {
    const auto found =
        std::ranges::find(toplevels_, window.id, [](const auto& toplevel) { return toplevel->id; });
    if (found != toplevels_.end() && seat != nullptr) {
        zwlr_foreign_toplevel_handle_v1_activate((*found)->handle.get(), seat);
    }
}

} // namespace quietlark
