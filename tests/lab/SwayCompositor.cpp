#include "tests/lab/SwayCompositor.h"

#include "tests/lab/Spin.h"

#include <csignal>

#include <unistd.h>

namespace quietlark::lab {

namespace {

constexpr uid_t nobody = 65534;

constexpr auto settings = "output HEADLESS-1 resolution 1280x720 position 0 0\n"
                          "output HEADLESS-2 resolution 1600x1200 position 1280 0 scale 2\n";

std::vector<std::string> byAnOrdinaryUser(std::vector<std::string> command) {
    if (geteuid() == 0) {
        const std::string user = std::to_string(nobody);
        const std::vector<std::string> prefix{"setpriv", "--reuid", user, "--regid", user, "--clear-groups"};
        command.insert(command.begin(), prefix.begin(), prefix.end());
    }
    return command;
}

} // namespace

SwayCompositor::SwayCompositor() {
    wumble::test::write(folder_ / "settings", settings);
    if (geteuid() == 0 && chown(folder_.path().c_str(), nobody, nobody) != 0) {
        return;
    }
    start();
}

void SwayCompositor::start() {
    Environment compositor = environment();
    compositor["WLR_BACKENDS"] = "headless";
    compositor["WLR_HEADLESS_OUTPUTS"] = "2";
    compositor["WLR_LIBINPUT_NO_DEVICES"] = "1";
    compositor["WLR_RENDERER"] = "pixman";
    compositor["WAYLAND_DISPLAY"] = "";
    for (const char* leftover : {"wayland-1", "wayland-1.lock", "control"}) {
        std::filesystem::remove(folder_ / leftover);
    }
    process_ =
        std::make_unique<LabProcess>(byAnOrdinaryUser({"sway", "-c", folder_ / "settings"}), compositor);
    isUp_ = spinUntil([this] {
        return run({"swaymsg", "-t", "get_outputs", "-r"}).find("HEADLESS-2") != std::string::npos;
    });
}

void SwayCompositor::kill() {
    process_->signal(SIGKILL);
    process_->wait();
}

Environment SwayCompositor::environment() const {
    const std::string folder = folder_.path().string();
    return {{"HOME", folder},           {"XDG_RUNTIME_DIR", folder},      {"XDG_CONFIG_HOME", folder},
            {"XDG_CACHE_HOME", folder}, {"WAYLAND_DISPLAY", "wayland-1"}, {"SWAYSOCK", folder_ / "control"}};
}

std::unique_ptr<LabProcess> SwayCompositor::open(const std::vector<std::string>& command) const {
    return std::make_unique<LabProcess>(byAnOrdinaryUser(command), environment());
}

std::string SwayCompositor::run(const std::vector<std::string>& command) const {
    return outputOf(byAnOrdinaryUser(command), environment());
}

} // namespace quietlark::lab
