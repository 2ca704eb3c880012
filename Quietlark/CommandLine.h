#pragma once

#include "WumbleCore/Engine/SettingsChoices.h"

#include <string>
#include <variant>
#include <vector>

namespace quietlark {

/// What the arguments ask the process to be.
namespace command {

/// The program itself.
struct RunApplication {
    bool demoBreak = false;           ///< show a short preview at once
    bool openSettings = false;        ///< with the window of the settings
    bool openCollage = false;         ///< and this week's pets in it
    bool enableLaunchAtLogin = false; ///< and tell in the program whether that worked
    bool operator==(const RunApplication&) const = default;
};

/// Pictures or sounds, written into a folder.
struct Render {
    std::string option; ///< of a renderer
    std::string folder; ///< empty: the renderer's own
    wumble::Appearance appearance = wumble::Appearance::light;
    bool operator==(const Render&) const = default;
};

/// The files of the icon that are kept with the sources, beside what is drawn now.
struct KeepIcon {
    std::string folder;       ///< empty: where they are kept
    bool bringInStep = false; ///< draws them anew where they differ; otherwise they are only compared
    bool operator==(const KeepIcon&) const = default;
};

/// A report of what the detector sees now.
struct Diagnose {
    bool operator==(const Diagnose&) const = default;
};

struct WatchMicrophone {
    double seconds = 120;
    bool operator==(const WatchMicrophone&) const = default;
};

struct WatchCapture {
    double seconds = 120;
    bool operator==(const WatchCapture&) const = default;
};

/// The process ends with a complaint before it has touched anything.
struct Refuse {
    std::string complaint; ///< a whole line
    int status = 0;
    bool operator==(const Refuse&) const = default;
};

} // namespace command

using Command = std::variant<command::RunApplication, command::Render, command::KeepIcon, command::Diagnose,
                             command::WatchMicrophone, command::WatchCapture, command::Refuse>;

/// `arguments` without the program's name. The option that stands first in the table of options decides, wherever it
/// stands among the arguments; only when there is none does an unknown one matter.
Command commandFor(const std::vector<std::string>& arguments);

} // namespace quietlark
