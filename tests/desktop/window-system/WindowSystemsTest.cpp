#include "Quietlark/Platform/Linux/WindowSystems.h"

#include "Quietlark/Platform/Linux/Wayland/WaylandInputClock.h"
#include "Quietlark/Platform/Linux/X11/X11InputClock.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace quietlark {

namespace {

enum class Kind { none, x11, wayland };

Kind kindOf(const WindowSystems& systems) {
    return dynamic_cast<X11InputClock*>(systems.input.get())       ? Kind::x11
           : dynamic_cast<WaylandInputClock*>(systems.input.get()) ? Kind::wayland
                                                                   : Kind::none;
}

TEST(WindowSystems, areChosenByTheSessionEvenWhereNothingAnswers) {
    const struct {
        const char* wayland;
        const char* display;
        const char* type;
        Kind kind;
    } cases[] = {
        {"", "", "", Kind::none},
        {"", ":9876", "", Kind::x11},
        {"/nowhere/wayland-9", ":9876", "wayland", Kind::wayland},
        {"/nowhere/wayland-9", "", "", Kind::wayland},
        {"/nowhere/wayland-9", ":9876", "x11", Kind::x11},
        {"/nowhere/wayland-9", "", "x11", Kind::none},
    };
    for (const auto& [wayland, display, type, kind] : cases) {
        SCOPED_TRACE(std::string(wayland) + " " + display + " " + type);
        ::setenv("WAYLAND_DISPLAY", wayland, 1);
        ::setenv("DISPLAY", display, 1);
        ::setenv("XDG_SESSION_TYPE", type, 1);
        const WindowSystems systems = makeWindowSystems({});
        EXPECT_EQ(kindOf(systems), kind);
        systems.input->refresh(1);
        systems.windows->refresh(1);
        EXPECT_FALSE(systems.input->secondsSinceAnyInput());
        EXPECT_FALSE(systems.windows->frontWindow());
        EXPECT_TRUE(systems.windows->displays().empty());
        EXPECT_FALSE(systems.displaysAsleep());
    }
    for (const char* name : {"WAYLAND_DISPLAY", "DISPLAY", "XDG_SESSION_TYPE"}) {
        ::unsetenv(name);
    }
}

} // namespace

} // namespace quietlark
