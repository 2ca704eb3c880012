#pragma once

#include "tests/desktop/program/AtTheScreen.h"
#include "tests/desktop/program/ProgramHome.h"
#include "tests/lab/SoundLab.h"

namespace quietlark::lab {

/// A plain desktop of its own, with a home for the program on it: an X server, a window manager, a sound server.
class ProgramDesktop : public AtTheScreen {
protected:
    void SetUp() override {
        for (const char* program : {"Xvfb", "openbox", "xdotool", "xterm", "pipewire", "wireplumber",
                                    "pipewire-pulse", "parecord", "pactl", "gst-launch-1.0"}) {
            LAB_NEEDS(program);
        }
        ASSERT_TRUE(sound.start());
        server = std::make_unique<XServer>();
        manager = start({"openbox", "--startup", "echo started"});
        manager->readLine();
        Environment session = sound.environment();
        session["DISPLAY"] = server->display();
        session["PULSE_SERVER"] = "";
        home = std::make_unique<ProgramHome>(session);
    }

    std::unique_ptr<LabProcess> start(const std::vector<std::string>& command) const {
        Environment session = sound.environment();
        session["DISPLAY"] = server->display();
        return std::make_unique<LabProcess>(command, session);
    }

    SoundLab sound;
    std::unique_ptr<LabProcess> manager;
    std::unique_ptr<ProgramHome> home;
};

} // namespace quietlark::lab
