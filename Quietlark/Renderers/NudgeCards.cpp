#include "Quietlark/Renderers/NudgeShow.h"
#include "Quietlark/Renderers/PetSheets.h"
#include "Quietlark/Renderers/Sheet.h"

#include <array>
#include <string>

namespace quietlark {

namespace {

struct Moment {
    const char* name;
    wumble::Toast (*toast)(double linger);
    double elapsed; ///< seconds after it came
    bool reached = false;
};

constexpr std::array moments{
    Moment{"blink", wumble::Toast::blink, 0.9},
    Moment{"blink-shut", wumble::Toast::blink, 2.28},
    Moment{"blink-done", wumble::Toast::blink, 4.2},
    Moment{"posture", wumble::Toast::posture, 1.6},
    Moment{"posture-up", wumble::Toast::posture, 3.8},
    Moment{"posture-done", wumble::Toast::posture, 5.4},
    Moment{"breath", wumble::Toast::breath, 4.4},
    Moment{"breath-full", wumble::Toast::breath, 6},
    Moment{"breath-reached", wumble::Toast::breath, 18.0, true},
};

/// One of each nudge, in the middle of what it asks for.
constexpr std::array plain{moments[0], moments[3], moments[6]};

QImage cardAt(const Moment& moment, const Appearance& appearance, double scale) {
    NudgeShow show(moment.toast(1), appearance);
    if (moment.reached) {
        show.pointAtCard();
    }
    show.goTo(moment.elapsed);
    return show.picture(scale);
}

} // namespace

bool renderNudgeCards(const std::filesystem::path& folder, Appearance appearance) {
    bool saved = true;
    for (const auto& moment : moments) {
        const std::string name = moment.name;
        saved = save(cardAt(moment, appearance, 1), folder, name + ".png") && saved;
        saved = save(cardAt(moment, appearance, 2), folder, name + "@2x.png") && saved;
    }
    Appearance large = appearance;
    large.textScale = 1.5;
    Appearance firm = appearance;
    firm.moreContrast = true;
    for (const auto& moment : plain) {
        const std::string name = moment.name;
        saved = save(cardAt(moment, large, 2), folder, name + "-large-text@2x.png") && saved;
        saved = save(cardAt(moment, firm, 2), folder, name + "-more-contrast@2x.png") && saved;
    }
    return saved;
}

} // namespace quietlark
