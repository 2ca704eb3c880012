#include "Quietlark/Platform/Linux/Video/VideoGraph.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string_view>

namespace quietlark {

namespace {

constexpr std::array<std::string_view, 2> cameraInterfaces{"v4l2", "libcamera"};
constexpr std::array<std::string_view, 2> desktopShells{"plasmashell", "org.kde.plasmashell"};

std::string_view value(const VideoProperties& properties, std::string_view key) {
    const auto found = properties.find(key);
    return found == properties.end() ? std::string_view() : std::string_view(found->second);
}

std::optional<std::string> text(const VideoProperties& properties, std::string_view key) {
    const std::string_view found = value(properties, key);
    return found.empty() ? std::nullopt : std::optional<std::string>(found);
}

std::uint32_t number(const VideoProperties& properties, std::string_view key) {
    std::uint32_t result = 0;
    const std::string_view digits = value(properties, key);
    std::from_chars(digits.data(), digits.data() + digits.size(), result);
    return result;
}

template <class List> bool contains(const List& list, std::string_view entry) {
    return std::ranges::find(list, entry) != list.end();
}

bool isCamera(const VideoNode& node) {
    return value(node.properties, "media.class") == "Video/Source" &&
           (value(node.properties, "media.role") == "Camera" ||
            contains(cameraInterfaces, value(node.properties, "device.api")));
}

bool isScreen(const VideoNode& node) {
    const std::string_view mediaClass = value(node.properties, "media.class");
    return mediaClass == "Stream/Output/Video" || (mediaClass == "Video/Source" && !isCamera(node));
}

bool isViewer(const VideoNode& node) { return value(node.properties, "media.class") == "Stream/Input/Video"; }

/// The system's word on a client's process is that of whoever opened the connection: not of a program that was
/// handed one by the portal or by the sound server.
bool openedItsOwnConnection(const VideoProperties& client) {
    return value(client, "pipewire.access") != "portal" &&
           value(client, "pipewire.access.portal.is_portal").empty() &&
           value(client, "pipewire.access.portal.app_id").empty() && value(client, "client.api").empty();
}

int process(const VideoProperties& client) {
    const auto told = static_cast<int>(number(client, "application.process.id"));
    const auto seen = static_cast<int>(number(client, "pipewire.sec.pid"));
    if (openedItsOwnConnection(client) && seen != 0) {
        return seen;
    }
    // Inside a sandbox processes are numbered anew.
    return value(client, "pipewire.access.portal.app_id").empty() ? told : 0;
}

AppHints hints(const VideoProperties& node, const VideoProperties& client) {
    const auto portalID = text(client, "pipewire.access.portal.app_id");
    const auto clientName = text(client, "application.name");
    return {.pid = process(client),
            .appID = portalID ? portalID : text(client, "application.id"),
            .windowClass = {},
            .name = clientName ? clientName : text(node, "application.name")};
}

bool isDesktop(const VideoProperties& client) {
    return contains(desktopShells, value(client, "application.name")) ||
           contains(desktopShells, value(client, "application.process.binary"));
}

} // namespace

bool VideoGraph::cameraRuns() const {
    return std::ranges::any_of(
        nodes, [](const auto& entry) { return isCamera(entry.second) && entry.second.isRunning; });
}

std::vector<AppHints> VideoGraph::watchers(int ownProcess) const {
    std::vector<AppHints> found;
    for (const auto& [id, link] : links) {
        const auto producer = nodes.find(link.producer);
        const auto consumer = nodes.find(link.consumer);
        if (!link.isActive || producer == nodes.end() || consumer == nodes.end() ||
            !isScreen(producer->second) || !isViewer(consumer->second)) {
            continue;
        }
        const VideoProperties& node = consumer->second.properties;
        const auto known = clients.find(number(node, "client.id"));
        const VideoProperties client = known == clients.end() ? VideoProperties{} : known->second;
        AppHints program = hints(node, client);
        if (!isDesktop(client) && (program.pid == 0 || program.pid != ownProcess)) {
            found.push_back(std::move(program));
        }
    }
    return found;
}

} // namespace quietlark
