#include "Quietlark/Renderers/Renderers.h"

#include "Quietlark/Renderers/PetSheets.h"

#include <algorithm>
#include <array>

namespace quietlark {

namespace {

constexpr int couldNotWrite = 1;
constexpr int unknownOption = 64;

constexpr std::array table{
    Renderer{"--sprite-sheet", "build/sprites", renderSprites},
    Renderer{"--icon-options", "build/icon-options", renderIconOptions},
    Renderer{"--app-icon", "build/app-icon", renderAppIcon},
    Renderer{"--render-previews", "build/previews", renderPreviews},
    Renderer{"--ux-review", "build/ux", renderUXReview},
    Renderer{"--nudge-clips", "build/nudges", renderNudgeClips},
    Renderer{"--motion-clips", "build/motion", renderMotion},
    Renderer{"--nudge-cards", "build/nudge-cards", renderNudgeCards},
    Renderer{"--export-sounds", "build/sounds", exportSounds},
    Renderer{"--looks-sheets", "build/looks", renderLooks},
};

} // namespace

std::span<const Renderer> renderers() { return table; }

int runRenderer(std::string_view option, const std::filesystem::path& folder, Appearance appearance) {
    const auto renderer = std::ranges::find(table, option, &Renderer::option);
    if (renderer == table.end()) {
        return unknownOption;
    }
    const auto target = folder.empty() ? std::filesystem::path(renderer->defaultFolder) : folder;
    return renderer->render(target, appearance) ? 0 : couldNotWrite;
}

} // namespace quietlark
