#include "Quietlark/Pet/WumbleAnimator.h"
#include "Quietlark/Pet/WumbleView.h"
#include "Quietlark/Renderers/PetCells.h"
#include "Quietlark/Renderers/PetSheets.h"

#include <array>

namespace quietlark {

namespace {

using wumble::WumbleGesture;
using wumble::WumbleMood;

constexpr int frames = 10;
constexpr double cellSize = 130;
constexpr double begin = 3; ///< seconds on the pet's clock: something must have been before

struct Strip {
    WumbleMood mood;
    const char* name;
    double seconds; ///< that it covers
};

constexpr std::array<Strip, 17> strips{{
    {WumbleMood::idle, "idle", 9},
    {WumbleMood::peek, "peek", 2.4},
    {WumbleMood::demonstrate, "demonstrate", 2.6},
    {WumbleMood::resting, "resting", 5},
    {WumbleMood::celebrate, "celebrate", 1.6},
    {WumbleMood::humming, "humming", 4.6},
    {WumbleMood::snoozed, "snoozed", 1.4},
    {WumbleMood::waiting, "waiting", 1.1},
    {WumbleMood::talking, "talking", 3},
    {WumbleMood::pulled, "pulled", 2},
    {WumbleMood::nodding, "nodding", 1.3},
    {WumbleMood::sleeping, "sleeping", 5.6},
    {WumbleMood::blinking, "blinking", 2.2},
    {WumbleMood::stretching, "stretching", 6.5},
    {WumbleMood::sittingUp, "sittingUp", 5},
    {WumbleMood::breathing, "breathing", 12},
    {WumbleMood::gazing, "gazing", 5},
}};

/// Frames of a view whose clock stands where it is put.
QImage strip(WumbleMood mood, std::optional<WumbleGesture> gesture, double seconds, Appearance appearance) {
    auto day = samplePet(wumble::WumbleBase::yuzu, 5, 4);
    day.traits.accessory = wumble::WumbleAccessory::sprout;
    day.traits.eyes = wumble::WumbleEyes::round;
    double now = begin;
    WumbleView view(day);
    view.setClock({.now = [&now] { return now; }});
    view.setAppearance(appearance);
    view.setFollowsPointer(false);
    view.setMood(mood);
    if (gesture) {
        view.react(*gesture);
    }
    std::vector<Cell> cells;
    for (int frame = 0; frame < frames; ++frame) {
        now = begin + seconds * (frame + 0.5) / frames;
        cells.push_back(petCell({}, day, view.pose(now), appearance));
    }
    return sheet(cells, paper(appearance, frames, cellSize));
}

} // namespace

bool renderMotion(const std::filesystem::path& folder, Appearance appearance) {
    bool saved = true;
    for (const auto& [mood, name, seconds] : strips) {
        saved = save(strip(mood, std::nullopt, seconds, appearance), folder,
                     std::string("mood-") + name + ".png") &&
                saved;
    }
    for (const auto gesture : wumble::allCases<WumbleGesture>()) {
        const auto name = "gesture-" + std::string(enumText(gesture)) + ".png";
        saved = save(strip(WumbleMood::idle, gesture, duration(gesture), appearance), folder, name) && saved;
    }
    return saved;
}

} // namespace quietlark
