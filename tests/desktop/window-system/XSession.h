#pragma once

#include "Quietlark/Platform/Linux/X11/X11InputClock.h"
#include "Quietlark/Platform/Linux/X11/X11WindowSystem.h"
#include "tests/desktop/window-system/Moments.h"
#include "tests/lab/Spin.h"
#include "tests/lab/XServer.h"

#include <gtest/gtest.h>

namespace quietlark::test {

/// A server with a window manager, and what the program learns of it.
class XSession : public testing::Test {
protected:
    void SetUp() override {
        for (const char* program : {"Xvfb", "openbox", "xdotool", "xterm", "xprop", "xrandr"}) {
            LAB_NEEDS(program);
        }
        server = std::make_unique<lab::XServer>();
        desktop = std::make_shared<X11Desktop>(server->display());
        input = std::make_unique<X11InputClock>(desktop);
        windows = std::make_unique<X11WindowSystem>(desktop);
        ASSERT_TRUE(until([this] { return input->ready() && windows->ready(); }));
    }

    void TearDown() override {
        clients.clear();
        manager.reset();
    }

    /// A window that came while it is still starting would wait for seconds to be let in.
    void startWindowManager() {
        manager = start({"openbox", "--startup", "echo started"});
        manager->readLine();
        ASSERT_TRUE(until([this] { return desktop->windows().canActivate(); }));
    }

    std::unique_ptr<lab::LabProcess> start(const std::vector<std::string>& command) const {
        return std::make_unique<lab::LabProcess>(command, server->environment());
    }

    /// Waits until its window is managed. Gives the window.
    AppWindow openTerminal(const std::string& windowClass, const std::vector<std::string>& options = {}) {
        std::vector<std::string> command{"xterm", "-class", windowClass};
        command.insert(command.end(), options.begin(), options.end());
        command.insert(command.end(), {"-e", "cat"});
        clients.push_back(start(command));
        EXPECT_TRUE(until([&] { return find(windowClass).has_value(); })) << windowClass;
        return find(windowClass).value_or(AppWindow{});
    }

    std::optional<AppWindow> find(const std::string& windowClass) const {
        for (const AppWindow& window : windows->windows()) {
            if (window.windowClass == windowClass) {
                return window;
            }
        }
        return {};
    }

    void setNumbers(const AppWindow& window, const std::string& property, const std::string& numbers) const {
        server->run(
            {"xprop", "-id", std::to_string(window.id), "-f", property, "32c", "-set", property, numbers});
    }

    void refresh() { desktop->refresh(uptime() + ahead); }

    bool until(const std::function<bool()>& condition) {
        return lab::spinUntil([&] {
            refresh();
            return condition();
        });
    }

    std::string frontClass() const {
        const auto front = windows->frontWindow();
        return front ? front->windowClass : "";
    }

    bool fillsAScreen(const AppWindow& window) {
        return wumble::GameDetection::fillsADisplay(windows->rectanglesOfProgram(window),
                                                    windows->displays());
    }

    std::unique_ptr<lab::XServer> server;
    std::unique_ptr<lab::LabProcess> manager;
    std::vector<std::unique_ptr<lab::LabProcess>> clients;
    std::shared_ptr<X11Desktop> desktop;
    std::unique_ptr<X11InputClock> input;
    std::unique_ptr<X11WindowSystem> windows;
    double ahead = 0; ///< of the machine's own uptime
};

} // namespace quietlark::test
