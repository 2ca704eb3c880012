#include "Quietlark/Renderers/PetSheets.h"

#include <array>

namespace quietlark {

namespace {

struct Part {
    const char* folder;
    bool (*render)(const std::filesystem::path& folder, Appearance appearance);
};

constexpr std::array parts{
    Part{"notes", renderNotePictures},        Part{"nudges", renderNudgeCards},
    Part{"break-screen", renderBreakScreens}, Part{"tray", renderTrayPictures},
    Part{"welcome", renderWelcomePictures},
};

} // namespace

bool renderPreviews(const std::filesystem::path& folder, Appearance appearance) {
    bool saved = true;
    for (const bool dark : {false, true}) {
        appearance.dark = dark;
        for (const Part& part : parts) {
            saved = part.render(folder / part.folder / (dark ? "dark" : "light"), appearance) && saved;
        }
    }
    return saved;
}

} // namespace quietlark
