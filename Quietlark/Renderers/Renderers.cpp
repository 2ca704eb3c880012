#include "Quietlark/Renderers/Renderers.h"

#include "Quietlark/Renderers/PetSheets.h"

#include <algorithm>
#include <array>

namespace quietlark {

namespace {

constexpr int couldNotWrite = 1;
constexpr int unknownOption = 64;

bool renderReview(const std::filesystem::path& folder, Appearance appearance) {
    const bool popovers = renderTrayPictures(folder, appearance);
    const bool breaks = renderBreakScreens(folder, appearance);
    return renderWelcomePictures(folder, appearance) && popovers && breaks;
}

constexpr std::array table{
    Renderer{"--sprite-sheet", "build/sprites", renderSprites},
    Renderer{"--icon-options", "build/icon-options", renderIconOptions},
    Renderer{"--app-icon", "build/app-icon", renderAppIcon},
    Renderer{"--nudge-clips", "build/nudges", renderNudgeClips},
    Renderer{"--motion-clips", "build/motion", renderMotion},
    Renderer{"--nudge-cards", "build/nudge-cards", renderNudgeCards},
    Renderer{"--note-pictures", "build/notes", renderNotePictures},
    Renderer{"--export-sounds", "build/sounds", exportSounds},
    Renderer{"--ux-review", "build/ux", renderReview},
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
