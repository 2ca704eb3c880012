#include "tests/app/ModelDriver.h"

namespace quietlark::test {

namespace {

/// In memory where the machine offers that: a week saves thousands of times.
std::filesystem::path quickFolder() {
    const std::filesystem::path memory = "/dev/shm";
    return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
}

} // namespace

ModelDriver::ModelDriver(const std::function<void(wumble::WumbleSettings&)>& choose, wumble::Date start)
    : folder(quickFolder()), loop(start) {
    desktop.frontWindow = AppWindow{.id = 1, .pid = 77};
    wumble::Storage storage(folder.path());
    wumble::WumbleSettings settings;
    settings.nudgesBetween = 0;
    choose(settings);
    storage.save(settings);
    wumble::WumbleLife life;
    life.welcomed = true;
    life.greetedDay = life.today(start, calendar(), choice()).day;
    storage.save(life);
}

ModelDriver::~ModelDriver() = default;

AppModel& ModelDriver::launch(AppModel::Running running) {
    model_.reset();
    platform_ = platform();
    model_ = std::make_unique<AppModel>(folder.path(), services());
    model_->install({&statusItem, &headsUp, &overlay, &toasts, &countdown});
    statusItem.closed = [this] { model_->popoverDidClose(); };
    model_->start(running);
    return *model_;
}

AppModelServices ModelDriver::services() {
    return {.mainLoop = loop,
            .platform = platform_,
            .sounds = &sounds,
            .loginItem = &loginItem,
            .accessibility = &accessibility,
            .calendar = calendar(),
            .random = choice()};
}

std::string ModelDriver::status() { return statusLine(state(), calendar()); }

Told ModelDriver::run(double seconds) {
    model();
    loop.advance(seconds);
    return told();
}

void ModelDriver::call(bool on) {
    desktop.recordingApps = on ? std::vector{AppRef{.pid = 5, .name = "Zoom"}} : std::vector<AppRef>();
}

} // namespace quietlark::test
