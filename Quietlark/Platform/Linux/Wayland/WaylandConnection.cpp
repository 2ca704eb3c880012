#include "Quietlark/Platform/Linux/Wayland/WaylandConnection.h"

#include "WumbleCore/Storage/FileDescriptor.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace quietlark {

namespace {

using Clock = std::chrono::steady_clock;

std::string pathOf(const std::string& socket) {
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    return socket.starts_with("/") || !folder ? socket : std::string(folder) + "/" + socket;
}

/// The library's own way would wait for a compositor that takes no more clients.
std::optional<wumble::FileDescriptor> connectTo(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) {
        return {};
    }
    std::memcpy(address.sun_path, path.c_str(), path.size());
    wumble::FileDescriptor file(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const auto* target = reinterpret_cast<const sockaddr*>(&address);
    const bool isThere = file.isOpen() && ::connect(file.get(), target, sizeof address) == 0;
    return isThere ? std::optional(std::move(file)) : std::nullopt;
}

bool waitForData(int file, bool mayWait, Clock::time_point deadline) {
    const auto left = std::chrono::duration_cast<std::chrono::nanoseconds>(deadline - Clock::now()).count();
    const timespec timeout{.tv_sec = 0, .tv_nsec = mayWait && left > 0 ? left : 0};
    pollfd watched{.fd = file, .events = POLLIN, .revents = 0};
    return ::ppoll(&watched, 1, &timeout, nullptr) > 0;
}

} // namespace

std::unique_ptr<WaylandConnection> WaylandConnection::open(const std::string& socket, GlobalReader added,
                                                           GlobalLoss removed) {
    const auto file = connectTo(pathOf(socket));
    wl_display* display = file ? wl_display_connect_to_fd(::fcntl(file->get(), F_DUPFD_CLOEXEC, 0)) : nullptr;
    if (!display) {
        return nullptr;
    }
    return std::unique_ptr<WaylandConnection>(
        new WaylandConnection(display, std::move(added), std::move(removed)));
}

WaylandConnection::WaylandConnection(wl_display* display, GlobalReader added, GlobalLoss removed)
    : display_(display), registry_(wl_display_get_registry(display)), added_(std::move(added)),
      removed_(std::move(removed)) {
    static constexpr wl_registry_listener listener{
        .global =
            [](void* self, wl_registry* registry, std::uint32_t name, const char* interface,
               std::uint32_t version) {
                static_cast<WaylandConnection*>(self)->added_({registry, name, interface, version});
            },
        .global_remove = [](void* self, wl_registry*,
                            std::uint32_t name) { static_cast<WaylandConnection*>(self)->removed_(name); }};
    wl_registry_add_listener(registry_.get(), &listener, this);
    beginCircle();
}

/// Its end comes back after all that was asked for before.
void WaylandConnection::beginCircle() {
    static constexpr wl_callback_listener listener{.done = [](void* data, wl_callback*, std::uint32_t) {
        auto* self = static_cast<WaylandConnection*>(data);
        if (--self->circlesLeft_ > 0) {
            self->beginCircle();
        }
    }};
    circle_.reset(wl_display_sync(display_.get()));
    wl_callback_add_listener(circle_.get(), &listener, this);
}

bool WaylandConnection::takeOnce(bool mayWait, Clock::time_point deadline, bool& hasMore) {
    wl_display* display = display_.get();
    while (wl_display_prepare_read(display) != 0) {
        if (wl_display_dispatch_pending(display) < 0) {
            return false;
        }
    }
    wl_display_flush(display);
    hasMore = waitForData(wl_display_get_fd(display), mayWait, deadline);
    if (!hasMore) {
        wl_display_cancel_read(display);
        return wl_display_get_error(display) == 0;
    }
    return wl_display_read_events(display) == 0 && wl_display_dispatch_pending(display) >= 0;
}

bool WaylandConnection::dispatch(std::chrono::microseconds patience) {
    const auto deadline = Clock::now() + patience;
    bool hasMore = true;
    while (hasMore && Clock::now() < deadline) {
        if (!takeOnce(!isComplete(), deadline, hasMore)) {
            return false;
        }
    }
    return true;
}

} // namespace quietlark
