#include "tests/lab/SoundLab.h"

#include "tests/lab/Spin.h"

#include <QByteArray>

#include <unistd.h>

namespace quietlark::lab {

SoundLab::SoundLab() { qputenv("XDG_RUNTIME_DIR", folder_.path().c_str()); }

SoundLab::~SoundLab() { stop(); }

Environment SoundLab::environment() const {
    const std::string folder = folder_.path().string();
    return {{"XDG_RUNTIME_DIR", folder},
            {"HOME", folder},
            {"XDG_CONFIG_HOME", folder},
            {"XDG_STATE_HOME", folder},
            {"DBUS_SESSION_BUS_ADDRESS", bus_}};
}

std::unique_ptr<LabProcess> SoundLab::run(const std::vector<std::string>& command) const {
    return std::make_unique<LabProcess>(command, environment(), folder_.path().string());
}

bool SoundLab::answers() const {
    return outputOf({"pactl", "list", "short", "sinks"}, environment()).find("speakers") !=
               std::string::npos &&
           outputOf({"pactl", "list", "short", "sources"}, environment()).find("virtmic") !=
               std::string::npos;
}

bool SoundLab::start() {
    const auto socket = [this](const char* name) {
        return [path = folder_ / name] { return access(path.c_str(), F_OK) == 0; };
    };
    servers_.push_back(run({"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"}));
    bus_ = servers_.back()->readLine().value_or("");
    servers_.push_back(run({"pipewire"}));
    if (!spinUntil(socket("pipewire-0"))) {
        return false;
    }
    servers_.push_back(run({"wireplumber"}));
    router_ = servers_.back().get();
    servers_.push_back(run({"pipewire-pulse"}));
    if (!spinUntil(socket("pulse/native"))) {
        return false;
    }
    // The socket is there a little before the server listens at it.
    if (!spinUntil([this] { return !outputOf({"pactl", "info"}, environment()).empty(); })) {
        return false;
    }
    outputOf({"pactl", "load-module", "module-null-sink", "sink_name=speakers"}, environment());
    outputOf({"pactl", "load-module", "module-null-sink", "media.class=Audio/Source/Virtual",
              "sink_name=virtmic", "channel_map=mono"},
             environment());
    return spinUntil([this] { return answers(); });
}

void SoundLab::stop() {
    while (!servers_.empty()) {
        servers_.back()->end();
        servers_.pop_back();
    }
    for (const char* name : {"pipewire-0", "pipewire-0.lock", "pulse/native"}) {
        unlink((folder_ / name).c_str());
    }
}

void SoundLab::endRouting() { router_->end(); }

void SoundLab::signal(int number) const {
    for (const auto& server : servers_) {
        server->signal(number);
    }
}

std::string SoundLab::nodeID(const std::string& name) const {
    const std::string listed = outputOf({"pw-cli", "ls", "Node"}, environment());
    const std::size_t node = listed.find("\"" + name + "\"");
    if (node == std::string::npos) {
        return {};
    }
    const std::size_t id = listed.rfind("id ", listed.rfind("type PipeWire", node)) + 3;
    return listed.substr(id, listed.find(',', id) - id);
}

} // namespace quietlark::lab
