#include "tests/lab/ScreenReader.h"

#include "tests/lab/Spin.h"

#include <filesystem>
#include <sstream>

namespace quietlark::lab {

namespace {

constexpr const char* launcher = "/usr/libexec/at-spi-bus-launcher";
constexpr const char* python = "/usr/bin/python3";

} // namespace

bool ScreenReader::isInstalled() {
    return std::filesystem::exists(launcher) &&
           outputOf({python, "-c", "import gi; gi.require_version('Atspi', '2.0'); print('there')"})
               .starts_with("there");
}

ScreenReader::ScreenReader(const PrivateBus& session, const XServer& server)
    : session_(session), server_(server),
      bus_(std::make_unique<LabProcess>(std::vector<std::string>{launcher}, environment())) {
    spinUntil(
        [&] { return !session_.call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus.GetAddress").empty(); });
    const auto script = std::filesystem::path(__FILE__).parent_path() / "screen_reader.py";
    reader_ = std::make_unique<LabProcess>(std::vector<std::string>{python, script.string()}, environment());
}

Environment ScreenReader::environment() const {
    Environment all = session_.asSession();
    all["DISPLAY"] = server_.display();
    all["XDG_RUNTIME_DIR"] = folder_.path().string();
    all["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1";
    return all;
}

std::optional<WindowPlace> ScreenReader::find(const std::string& name) const {
    reader_->writeLine(name);
    std::istringstream told(reader_->readLine().value_or(""));
    WindowPlace place;
    return told >> place.x >> place.y >> place.width >> place.height ? std::optional(place) : std::nullopt;
}

bool ScreenReader::press(const std::string& name) const {
    std::optional<WindowPlace> place;
    if (!spinUntil([&] { return (place = find(name)).has_value(); }, 10)) {
        return false;
    }
    click(server_, place->x + place->width / 2, place->y + place->height / 2);
    return true;
}

} // namespace quietlark::lab
