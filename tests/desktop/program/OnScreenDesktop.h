#pragma once

#include "tests/desktop/program/ProgramDesktop.h"

namespace quietlark::lab {

inline constexpr auto breakScreen = "break-screen";

/// A desktop with a person at it, who sees what comes on the screen, presses keys and clicks.
class OnScreenDesktop : public ProgramDesktop {
protected:
    bool lies(const std::string& name, const WindowPlace& place, double seconds = 20) const {
        return spinUntil([&] { return placeOf(name) == place; }, seconds);
    }
    void press(const std::string& key) const { server->run({"xdotool", "key", key}); }
    void type(const std::string& text) const { server->run({"xdotool", "type", text}); }

    /// Clicks down the middle of the screen, where the one button or the second of three stands, until it leaves.
    bool leavesByItsButton() const {
        return spinUntil([&] {
            for (int y = screenHeight / 2; y < screenHeight && isUp(breakScreen); y += buttonHeight / 2) {
                click(*server, screenWidth / 2, y);
            }
            return !isUp(breakScreen);
        });
    }

    /// Presses Esc until the break screen leaves, and gives how often; 0 where it stays. No press comes after it left.
    int escapesUntilItLeaves() const {
        int presses = 0;
        const bool left = spinUntil(
            [&] {
                press("Escape");
                ++presses;
                return goes(breakScreen, 1);
            },
            40);
        return left ? presses : 0;
    }

    /// A window over the whole screen that the person works in; what is typed into it stands in its file, line by line.
    std::unique_ptr<LabProcess> openEditor() const {
        auto editor = start({"xterm", "-T", "Editor", "-maximized", "-e",
                             "cat > '" + (home->home() / "typed").string() + "'"});
        EXPECT_TRUE(comesToTheFront("Editor"));
        return editor;
    }
    std::string typed() const { return wumble::test::bytesOf(home->home() / "typed"); }

    /// Whether the keys that are pressed now come to the editor, and none of those before did.
    bool editorHasTheKeysBack() const {
        if (!spinUntil([&] { return focusedWindow() == "Editor\n"; })) {
            return false;
        }
        type("x\n");
        return spinUntil([&] { return typed() == "x\n"; });
    }

    static constexpr int screenWidth = 1600;
    static constexpr int screenHeight = 900;
    static constexpr int buttonHeight = 36;
};

} // namespace quietlark::lab
