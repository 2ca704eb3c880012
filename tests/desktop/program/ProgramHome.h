#pragma once

#include "WumbleCore/Storage/Storage.h"
#include "tests/lab/LabProcess.h"
#include "tests/support/TemporaryFolder.h"

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quietlark::lab {

/// A day in which a break of a second comes every two seconds, and nothing else.
inline wumble::WumbleSettings shortDay() {
    wumble::WumbleSettings settings;
    settings.workInterval = 2;
    settings.shortBreakDuration = 1;
    settings.longBreaksEnabled = false;
    settings.countdownDuration = 0;
    settings.nudgesBetween = 0;
    return settings;
}

/// A person's home with nothing in it but what the program puts there. By default there is no window system, no bus and
/// no sound server; `also` adds them.
class ProgramHome {
public:
    explicit ProgramHome(Environment also = {}) : also_(std::move(also)) {
        std::filesystem::create_directories(home());
    }

    std::filesystem::path home() const { return folder_ / "home"; }
    std::filesystem::path data() const { return folder_ / "data"; }

    Environment environment() const {
        Environment all{{"HOME", home()},
                        {"WUMBLE_DATA_DIR", data()},
                        {"XDG_RUNTIME_DIR", folder_.path()},
                        {"XDG_DATA_HOME", ""},
                        {"XDG_CONFIG_HOME", ""},
                        {"DBUS_SESSION_BUS_ADDRESS", "unix:path=" + (folder_ / "no-bus").string()},
                        {"DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + (folder_ / "no-bus").string()},
                        {"PULSE_SERVER", "unix:" + (folder_ / "no-sound").string()},
                        {"ASAN_OPTIONS", "detect_leaks=0"}};
        for (const auto& [name, value] : also_) {
            all[name] = value;
        }
        return all;
    }

    std::unique_ptr<LabProcess> start(const std::vector<std::string>& words = {},
                                      const Environment& also = {}) const {
        std::vector<std::string> command{QUIETLARK_PROGRAM};
        command.insert(command.end(), words.begin(), words.end());
        Environment all = environment();
        for (const auto& [name, value] : also) {
            all[name] = value;
        }
        return std::make_unique<LabProcess>(command, all, folder_.path().string());
    }

    /// Leaves settings there, of a person who was welcomed before.
    void remember(const wumble::WumbleSettings& settings) const {
        const wumble::Storage storage(data());
        storage.save(settings);
        wumble::WumbleLife life;
        life.welcomed = true;
        storage.save(life);
    }

    std::vector<wumble::BreakRecord> history() const { return wumble::Storage(data()).loadHistory(); }

    /// What it wrote to its standard error, of all its runs.
    std::string errors() const { return wumble::test::bytesOf(folder_ / "quietlark.log"); }

private:
    wumble::test::TemporaryFolder folder_;
    Environment also_;
};

} // namespace quietlark::lab
