# Where the system's packages keep the protocols that the program speaks: wayland-protocols, plasma-wayland-protocols,
# and wlr-protocols or librust-wayland-protocols-dev (whose folder bears its version).
pkg_get_variable(WAYLAND_PROTOCOLS_FOLDER wayland-protocols pkgdatadir)
pkg_get_variable(WLR_PROTOCOLS_FOLDER wlr-protocols pkgdatadir)
file(GLOB RUST_PROTOCOLS_FOLDERS /usr/share/cargo/registry/wayland-protocols-[0-9]*/wlr-protocols)

find_file(WAYLAND_EXT_IDLE ext-idle-notify-v1.xml PATHS ${WAYLAND_PROTOCOLS_FOLDER}/staging/ext-idle-notify REQUIRED)
find_file(WAYLAND_XDG_OUTPUT xdg-output-unstable-v1.xml PATHS ${WAYLAND_PROTOCOLS_FOLDER}/unstable/xdg-output REQUIRED)
find_file(WAYLAND_KDE_IDLE idle.xml PATH_SUFFIXES share/plasma-wayland-protocols plasma-wayland-protocols REQUIRED)
find_file(WAYLAND_TOPLEVELS wlr-foreign-toplevel-management-unstable-v1.xml
  PATHS ${WLR_PROTOCOLS_FOLDER} ${RUST_PROTOCOLS_FOLDERS} PATH_SUFFIXES unstable REQUIRED)
set(WAYLAND_DESCRIPTIONS ${WAYLAND_EXT_IDLE} ${WAYLAND_XDG_OUTPUT} ${WAYLAND_KDE_IDLE} ${WAYLAND_TOPLEVELS})
