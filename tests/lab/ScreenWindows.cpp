#include "tests/lab/ScreenWindows.h"

#include <sstream>

namespace quietlark::lab {

std::optional<WindowPlace> windowPlace(const XServer& server, const std::string& name) {
    std::istringstream found(server.run({"xdotool", "search", "--onlyvisible", "--name", "^" + name + "$"}));
    std::string window;
    if (!(found >> window)) {
        return std::nullopt;
    }
    WindowPlace place;
    std::istringstream shell(server.run({"xdotool", "getwindowgeometry", "--shell", window}));
    for (std::string line; std::getline(shell, line);) {
        const std::size_t equals = line.find('=');
        const std::string key = line.substr(0, equals);
        int* const field = key == "X"        ? &place.x
                           : key == "Y"      ? &place.y
                           : key == "WIDTH"  ? &place.width
                           : key == "HEIGHT" ? &place.height
                                             : nullptr;
        if (field != nullptr) {
            *field = std::stoi(line.substr(equals + 1));
        }
    }
    const bool isGoneMeanwhile = place.width == 0;
    return isGoneMeanwhile ? std::nullopt : std::optional(place);
}

void click(const XServer& server, int x, int y) {
    server.run({"xdotool", "mousemove", std::to_string(x), std::to_string(y), "click", "1"});
}

} // namespace quietlark::lab
