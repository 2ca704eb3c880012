#include "Quietlark/Renderers/NudgeShow.h"
#include "Quietlark/Renderers/PetCells.h"
#include "Quietlark/Renderers/PetSheets.h"
#include "Quietlark/Renderers/PictureCell.h"

#include <array>
#include <cstdio>
#include <string>
#include <vector>

namespace quietlark {

namespace {

constexpr double linger = 1;
constexpr double cellSize = 400;
constexpr int columns = 6;

/// Seconds from the arrival on that show how it comes; and from the exit's start on, how it goes.
constexpr std::array arrival{0.0, 0.04, 0.09, 0.16, 0.26, 0.42, 0.7};
constexpr std::array exits{0.0, 0.06, 0.12, 0.18, 0.24, 0.3, 0.34};

struct Clip {
    const char* name;
    wumble::Toast (*toast)(double linger);
    double every;  ///< seconds from frame to frame of the exercise
    double height; ///< points of a frame
};

constexpr std::array clips{Clip{"blink", wumble::Toast::blink, 0.3, 216},
                           Clip{"posture", wumble::Toast::posture, 0.35, 420},
                           Clip{"breath", wumble::Toast::breath, 2, 216}};

std::string inSeconds(double elapsed) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.2f s", elapsed);
    return text.data();
}

std::vector<Cell> frames(const Clip& clip, const Appearance& appearance) {
    const auto toast = clip.toast(linger);
    NudgeShow show(toast, appearance);
    std::vector<Cell> cells;
    const auto take = [&](double elapsed) {
        show.goTo(elapsed);
        cells.push_back(pictureCell(inSeconds(elapsed), show.picture(1)));
    };
    for (const double elapsed : arrival) {
        take(elapsed);
    }
    for (double elapsed = 1; elapsed < toast.duration; elapsed += clip.every) {
        take(elapsed);
    }
    show.goTo(toast.duration);
    show.leave();
    for (const double since : exits) {
        take(toast.duration + since);
    }
    return cells;
}

} // namespace

bool renderNudgeClips(const std::filesystem::path& folder, Appearance appearance) {
    bool saved = true;
    for (const auto& clip : clips) {
        auto layout = paper(appearance, columns, cellSize);
        layout.height = clip.height;
        const auto strip = sheet(frames(clip, appearance), layout);
        saved = save(strip, folder, std::string(clip.name) + ".png") && saved;
    }
    return saved;
}

} // namespace quietlark
