#pragma once

#include "tests/desktop/program/AtTheScreen.h"
#include "tests/desktop/program/ProgramHome.h"
#include "tests/lab/ScreenReader.h"

namespace quietlark::lab {

/// A desktop with a bus and an open editor, on which each test puts the panel it wants, and somebody who looks at the
/// program's windows and clicks on what they find there.
class TrayDesktop : public AtTheScreen {
protected:
    static constexpr auto theEditor = "Editor\n";

    void SetUp() override {
        for (const char* program : {"Xvfb", "openbox", "xdotool", "xterm", "dbus-daemon", "gdbus"}) {
            LAB_NEEDS(program);
        }
        if (!ScreenReader::isInstalled()) {
            GTEST_SKIP() << "at-spi2-core or its introspection isn't installed";
        }
        server = std::make_unique<XServer>();
        bus = std::make_unique<PrivateBus>();
        reader = std::make_unique<ScreenReader>(*bus, *server);
        home = std::make_unique<ProgramHome>(reader->environment());
        manager = start({"openbox", "--startup", "echo started"});
        manager->readLine();
        editor = start({"xterm", "-T", "Editor", "-geometry", "60x10+300+500", "-e", "cat"});
        ASSERT_TRUE(comesToTheFront("Editor"));
    }

    /// A program of the desktop, in the same home.
    std::unique_ptr<LabProcess> start(const std::vector<std::string>& command) const {
        Environment all = home->environment();
        all["GSETTINGS_BACKEND"] = "memory";
        return std::make_unique<LabProcess>(command, all);
    }

    void clickAt(int x, int y, const char* button = "1") const {
        server->run({"xdotool", "mousemove", std::to_string(x), std::to_string(y), "click", button});
    }
    void keys(const std::vector<std::string>& pressed) const {
        for (const std::string& key : pressed) {
            server->run({"xdotool", "key", key});
        }
    }
    bool sees(const std::string& control) const {
        return spinUntil([&] { return reader->find(control).has_value(); });
    }

    /// As the desktop does when the person starts the program again.
    void activate() const {
        outputOf({"gdbus", "call", "--session", "--dest", "com.fernwick.quietlark", "--object-path",
                  "/com/fernwick/quietlark", "--method", "org.freedesktop.Application.Activate", "{}"},
                 bus->asSession());
    }

    std::unique_ptr<PrivateBus> bus;
    std::unique_ptr<ScreenReader> reader;
    std::unique_ptr<ProgramHome> home;
    std::unique_ptr<LabProcess> manager;
    std::unique_ptr<LabProcess> editor;
};

} // namespace quietlark::lab
