# Libraries of the application; the core needs none of them.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Widgets)
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET
  xcb xcb-screensaver xcb-xinput xcb-dpms xcb-res xcb-randr xcb-shape xcb-xfixes xcb-ewmh)
pkg_check_modules(PULSE REQUIRED IMPORTED_TARGET libpulse libpulse-mainloop-glib)
pkg_check_modules(GLIB REQUIRED IMPORTED_TARGET glib-2.0)
pkg_check_modules(PIPEWIRE REQUIRED IMPORTED_TARGET libpipewire-0.3)
pkg_check_modules(WAYLAND REQUIRED IMPORTED_TARGET wayland-client)
include(WaylandProtocols)
