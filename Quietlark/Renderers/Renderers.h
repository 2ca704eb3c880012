#pragma once

#include "Quietlark/Theme/Appearance.h"

#include <filesystem>
#include <span>
#include <string_view>

namespace quietlark {

/// A way to look at the drawings without the program around them: an option of the command line that writes
/// pictures into a folder.
struct Renderer {
    std::string_view option;                                                    ///< "--sprite-sheet"
    std::string_view defaultFolder;                                             ///< "build/sprites"
    bool (*render)(const std::filesystem::path& folder, Appearance appearance); ///< false: couldn't write
};

std::span<const Renderer> renderers();

/// Runs the renderer of that option; needs a QApplication. An empty folder is the renderer's own. 0 when all
/// was written, 1 when not, 64 for an option that no renderer has.
int runRenderer(std::string_view option, const std::filesystem::path& folder, Appearance appearance);

} // namespace quietlark
