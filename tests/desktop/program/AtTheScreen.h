#pragma once

#include "tests/lab/ScreenWindows.h"
#include "tests/lab/Spin.h"

#include <gtest/gtest.h>

#include <memory>

namespace quietlark::lab {

/// Somebody at the screen of a server, who sees the program's windows come and go and clicks on them.
class AtTheScreen : public testing::Test {
protected:
    std::optional<WindowPlace> placeOf(const std::string& window) const {
        return windowPlace(*server, window);
    }
    bool isUp(const std::string& window) const { return placeOf(window).has_value(); }
    bool comes(const std::string& window, double seconds = 20) const {
        return spinUntil([&] { return isUp(window); }, seconds);
    }
    bool goes(const std::string& window, double seconds = 20) const {
        return spinUntil([&] { return !isUp(window); }, seconds);
    }
    /// Whether the window came, stands where the window manager wants it, and has the keys.
    bool comesToTheFront(const std::string& window) const {
        if (!comes(window)) {
            return false;
        }
        bringToFront(*server, window);
        return true;
    }
    /// Its name, with the end of its line.
    std::string focusedWindow() const { return server->run({"xdotool", "getwindowfocus", "getwindowname"}); }

    std::unique_ptr<XServer> server;
};

} // namespace quietlark::lab
