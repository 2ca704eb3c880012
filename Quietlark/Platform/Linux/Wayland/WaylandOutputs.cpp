#include "Quietlark/Platform/Linux/Wayland/WaylandOutputs.h"

#include <algorithm>
#include <utility>

#include <xdg-output-unstable-v1.h>

namespace quietlark {

namespace {

constexpr std::uint32_t outputVersion = 2;
constexpr std::uint32_t descriptionVersion = 2;

/// Every second transform stands a screen on its side.
bool isOnItsSide(int transform) { return transform % 2 != 0; }

} // namespace

struct WaylandOutputs::Output {
    std::uint32_t name = 0;
    WaylandObject<wl_output> object;
    WaylandObject<zxdg_output_v1> description;
    wumble::Point corner;
    wumble::Size pixels;
    int transform = 0;
    int scale = 1;
    std::optional<wumble::Point> logicalCorner;
    std::optional<wumble::Size> logicalSize;

    static Output& of(void* self) { return *static_cast<Output*>(self); }

    wumble::Rect frame() const {
        wumble::Size size{pixels.width / scale, pixels.height / scale};
        if (isOnItsSide(transform)) {
            std::swap(size.width, size.height);
        }
        const auto [x, y] = logicalCorner.value_or(corner);
        const auto [width, height] = logicalSize.value_or(size);
        return {x, y, width, height};
    }
};

WaylandOutputs::WaylandOutputs() = default;
WaylandOutputs::~WaylandOutputs() = default;

void WaylandOutputs::take(const WaylandGlobal& global) {
    static constexpr wl_output_listener listener{
        .geometry =
            [](void* self, wl_output*, int x, int y, int, int, int, const char*, const char*, int transform) {
                Output::of(self).corner = {static_cast<double>(x), static_cast<double>(y)};
                Output::of(self).transform = transform;
            },
        .mode =
            [](void* self, wl_output*, std::uint32_t flags, int width, int height, int) {
                if ((flags & WL_OUTPUT_MODE_CURRENT) != 0) {
                    Output::of(self).pixels = {static_cast<double>(width), static_cast<double>(height)};
                }
            },
        .done = [](void*, wl_output*) {},
        .scale = [](void* self, wl_output*, int scale) { Output::of(self).scale = std::max(scale, 1); }};
    if (global.interface == zxdg_output_manager_v1_interface.name) {
        descriptions_ = waylandBind<zxdg_output_manager_v1>(global.registry, global.name,
                                                            zxdg_output_manager_v1_interface, global.version,
                                                            descriptionVersion);
        for (const auto& output : outputs_) {
            describe(*output);
        }
    } else if (global.interface == wl_output_interface.name) {
        auto& output = outputs_.emplace_back(std::make_unique<Output>());
        output->name = global.name;
        output->object = waylandBind<wl_output>(global.registry, global.name, wl_output_interface,
                                                global.version, outputVersion);
        wl_output_add_listener(output->object.get(), &listener, output.get());
        describe(*output);
    }
}

void WaylandOutputs::describe(Output& output) {
    static constexpr zxdg_output_v1_listener listener{
        .logical_position =
            [](void* self, zxdg_output_v1*, int x, int y) {
                Output::of(self).logicalCorner = {static_cast<double>(x), static_cast<double>(y)};
            },
        .logical_size =
            [](void* self, zxdg_output_v1*, int width, int height) {
                Output::of(self).logicalSize = {static_cast<double>(width), static_cast<double>(height)};
            },
        .done = [](void*, zxdg_output_v1*) {},
        .name = [](void*, zxdg_output_v1*, const char*) {},
        .description = [](void*, zxdg_output_v1*, const char*) {}};
    if (descriptions_ && !output.description) {
        output.description.reset(
            zxdg_output_manager_v1_get_xdg_output(descriptions_.get(), output.object.get()));
        zxdg_output_v1_add_listener(output.description.get(), &listener, &output);
    }
}

void WaylandOutputs::lose(std::uint32_t name) {
    std::erase_if(outputs_, [name](const auto& output) { return output->name == name; });
}

std::vector<wumble::Rect> WaylandOutputs::frames() const {
    std::vector<wumble::Rect> result;
    for (const auto& output : outputs_) {
        if (!isEmpty(output->frame())) {
            result.push_back(output->frame());
        }
    }
    return result;
}

std::optional<wumble::Rect> WaylandOutputs::frame(const wl_output* object) const {
    for (const auto& output : outputs_) {
        if (output->object.get() == object && !isEmpty(output->frame())) {
            return output->frame();
        }
    }
    return {};
}

} // namespace quietlark
