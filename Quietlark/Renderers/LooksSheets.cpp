#include "Quietlark/Renderers/PetCells.h"
#include "Quietlark/Renderers/PetSheets.h"

namespace quietlark {

namespace {

using wumble::allCases;
using wumble::enumText;
using wumble::WumbleBase;

constexpr double cellSize = 150;
constexpr double smallSize = 40;
constexpr int complete = 6;
constexpr int withCheeks = 4;

WumbleBase someBase(std::size_t place) {
    constexpr auto bases = allCases<WumbleBase>();
    return bases[place * 5 % bases.size()];
}

std::vector<Cell> flavours(int revealed, Appearance appearance) {
    std::vector<Cell> cells;
    int variety = 0;
    for (const auto base : allCases<WumbleBase>()) {
        const auto day = samplePet(base, revealed, revealed == complete ? variety++ : 0);
        cells.push_back(petCell(wumble::name(base), day, {}, appearance));
    }
    return cells;
}

/// One cell for each case of a vocabulary, put into the day or the pose by `put`.
template <class Case> std::vector<Cell> looks(int revealed, Appearance appearance,
                                              void (*put)(wumble::WumbleDay&, WumblePose&, Case)) {
    std::vector<Cell> cells;
    for (const auto value : allCases<Case>()) {
        auto day = samplePet(someBase(cells.size()), revealed);
        WumblePose pose;
        put(day, pose, value);
        cells.push_back(petCell(std::string(enumText(value)), day, pose, appearance));
    }
    return cells;
}

std::vector<Cell> faces(Appearance appearance) {
    std::vector<Cell> cells;
    for (const auto eyes : allCases<wumble::WumbleEyes>()) {
        for (const auto mouth : allCases<wumble::WumbleMouth>()) {
            auto day = samplePet(WumbleBase::sakura, withCheeks);
            day.traits.eyes = eyes;
            day.traits.mouth = mouth;
            cells.push_back(petCell(std::string(enumText(eyes)) + ", " + std::string(enumText(mouth)), day,
                                    {}, appearance));
        }
    }
    return cells;
}

std::vector<Cell> growth(Appearance appearance) {
    constexpr std::array bases{WumbleBase::sakura, WumbleBase::yuzu, WumbleBase::mitarashi};
    std::vector<Cell> cells;
    for (std::size_t row = 0; row < bases.size(); ++row) {
        for (int revealed = 0; revealed <= complete; ++revealed) {
            const auto day = samplePet(bases[row], revealed, static_cast<int>(row) * 4);
            const auto step = static_cast<wumble::RevealStep>(revealed);
            cells.push_back(
                petCell(revealed == 0 ? "a clump" : std::string(title(step)), day, {}, appearance));
        }
    }
    return cells;
}

std::vector<Cell> props(Appearance appearance) {
    const std::vector<std::pair<std::string, WumblePose>> poses{
        {"hug", {.hug = true}},
        {"keyboard", {.keyboard = true}},
        {"headset", {.headset = true, .talk = 0.6}},
        {"pulled", {.pull = 1, .pointer = true}},
        {"humming", {.hum = 0.4}},
        {"sleeping", {.face = face::Calm{}, .zzz = 0.5}},
        {"sparkles", {.sparkles = 0.2}},
        {"heart", {.heart = 0.5}},
        {"full of breath", {.puff = 1}},
        {"stretched", {.tall = 0.6}},
        {"swaying", {.sway = 22}},
        {"sunk", {.sag = 22}},
    };
    std::vector<Cell> cells;
    cells.reserve(std::size(poses));
    for (const auto& [caption, pose] : poses) {
        cells.push_back(petCell(caption, samplePet(someBase(cells.size()), withCheeks), pose, appearance));
    }
    return cells;
}

} // namespace

bool renderSprites(const std::filesystem::path& folder, Appearance appearance) {
    const auto pets = flavours(complete, appearance);
    const bool large = save(sheet(pets, paper(appearance, 7, 220)), folder, "sprites.png");
    return save(sheet(pets, paper(appearance, 13, smallSize)), folder, "sprites-40.png") && large;
}

bool renderLooks(const std::filesystem::path& folder, Appearance appearance) {
    using wumble::WumbleAccessory;
    using wumble::WumbleDay;
    using wumble::WumbleExpression;
    using wumble::WumbleKeepsake;
    const auto accessories =
        looks<WumbleAccessory>(5, appearance, [](WumbleDay& day, WumblePose&, WumbleAccessory value) {
            day.traits.accessory = value;
        });
    const auto keepsakes =
        looks<WumbleKeepsake>(complete, appearance, [](WumbleDay& day, WumblePose&, WumbleKeepsake value) {
            day.traits.keepsake = value;
        });
    const auto expressions = looks<WumbleExpression>(
        withCheeks, appearance,
        [](WumbleDay&, WumblePose& pose, WumbleExpression value) { pose.face = face::Expression{value}; });
    auto grey = paper(appearance, 7, cellSize);
    grey.grey = true;
    const std::vector<std::pair<std::string, QImage>> sheets{
        {"flavours.png", sheet(flavours(withCheeks, appearance), paper(appearance, 7, cellSize))},
        {"flavours-grey.png", sheet(flavours(withCheeks, appearance), grey)},
        {"faces.png", sheet(faces(appearance), paper(appearance, 5, cellSize))},
        {"expressions.png", sheet(expressions, paper(appearance, 4, cellSize))},
        {"growth.png", sheet(growth(appearance), paper(appearance, complete + 1, cellSize))},
        {"accessories.png", sheet(accessories, paper(appearance, 5, cellSize))},
        {"accessories-40.png", sheet(accessories, paper(appearance, 15, smallSize))},
        {"keepsakes.png", sheet(keepsakes, paper(appearance, 6, cellSize))},
        {"keepsakes-40.png", sheet(keepsakes, paper(appearance, 11, smallSize))},
        {"props.png", sheet(props(appearance), paper(appearance, 6, cellSize))},
    };
    return std::ranges::all_of(sheets, [&](const auto& one) { return save(one.second, folder, one.first); });
}

} // namespace quietlark
