#include "tests/lab/MateSession.h"

#include "tests/lab/Spin.h"

namespace quietlark::lab {

MateSession::MateSession(const PrivateBus& bus) : bus_(bus) {
    const std::string home = folder_.path().string();
    std::filesystem::create_directories(folder_ / "config/glib-2.0/settings");
    wumble::test::write(folder_ / "config/glib-2.0/settings/keyfile",
                        "[org/mate/desktop/session]\nrequired-components-list=@as []\n");
    display_ = std::make_unique<LabProcess>(
        std::vector<std::string>{"Xvfb", "-displayfd", "1", "-screen", "0", "640x480x24"});
    environment_ = bus.asSession();
    environment_.insert({{"HOME", home},
                         {"XDG_CONFIG_HOME", home + "/config"},
                         {"XDG_CONFIG_DIRS", home},
                         {"XDG_RUNTIME_DIR", home},
                         {"ICEAUTHORITY", home + "/ICEauthority"},
                         {"GSETTINGS_BACKEND", "keyfile"},
                         {"DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere"},
                         {"DISPLAY", ":" + display_->readLine().value_or("")}});
    manager_ = std::make_unique<LabProcess>(
        std::vector<std::string>{"mate-session", "--disable-acceleration-check"}, environment_, home);
    spinUntil([&] {
        return bus_.call("org.gnome.SessionManager", "/org/gnome/SessionManager",
                         "org.gnome.SessionManager.IsSessionRunning")
                   .find("true") != std::string::npos;
    });
}

void MateSession::logOut() const {
    const std::string withoutAsking = "uint32:1";
    bus_.call("org.gnome.SessionManager", "/org/gnome/SessionManager", "org.gnome.SessionManager.Logout",
              {withoutAsking});
}

} // namespace quietlark::lab
