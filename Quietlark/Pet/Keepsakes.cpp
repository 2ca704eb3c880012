#include "Quietlark/Pet/Art/KeepsakeArt.h"
#include "Quietlark/Pet/Things.h"

namespace quietlark::SoftWumble {

namespace {

using wumble::WumbleKeepsake;

constexpr Layer edge(Art art, Tint tint) { return {art, tint, 0, true}; }
constexpr Layer fill(Art art, Tint tint, double opacity = 1) { return {art, tint, 0, false, opacity}; }
constexpr Layer line(Art art, Tint tint, double width, double opacity = 1) {
    return {art, tint, width, false, opacity};
}

constexpr std::array bookLayers{edge(bookCover, 0x4B7FB3), fill(bookPages, 0xFFF9EC),
                                line(bookLines, 0xC9B99A, 2.2)};
constexpr std::array teaLayers{line(teaSteam, 0xFFFFFF, 3.2, 0.85), line(teaHandle, 0x5E9C90, 5),
                               edge(teaCup, 0x7DBBAB), fill(teaBand, 0xF5F1E2), fill(teaDrink, 0xB5743C)};
constexpr std::array heartLayers{edge(heart, 0xE6516A), line(heartShine, 0xFFB3BF, 4),
                                 line(heartStitch, 0xC23A54, 2)};
constexpr std::array plantLayers{line(plantStem, 0x5C8F45, 4), edge(plantLeafA, 0x76B359),
                                 edge(plantLeafB, 0x629E49),   edge(plantLeafC, 0x8BC66B),
                                 edge(plantPot, 0xD37B52),     edge(plantPotRim, 0xE3946B)};
constexpr std::array craneLayers{edge(craneOutline, 0x79AEE0),  fill(craneTail, 0x5E97CE),
                                 fill(craneNeck, 0x86B9E6),     fill(craneHead, 0xF4B544),
                                 fill(craneBackWing, 0x5E97CE), fill(craneBody, 0x79AEE0),
                                 fill(craneLight, 0xC3E0F7)};
constexpr std::array pencilLayers{edge(pencilRubber, 0xF48FA0),       edge(pencilWood, 0xF8C644),
                                  line(pencilStripes, 0xE3A52F, 2.4), edge(pencilTip, 0xF3D6A8),
                                  fill(pencilLead, 0x4A4048),         fill(pencilFerrule, 0xB9BDC8)};
constexpr std::array lanternLayers{line(lanternHandle, 0x5B4034, 3.4), edge(lanternPaper, 0xF0714D),
                                   fill(lanternGlow, 0xFFDD8E), line(lanternBands, 0xCB5236, 2.4),
                                   edge(lanternCaps, 0x5B4034)};
constexpr std::array dangoLayers{edge(dangoStick, 0xC99B62),  edge(dangoBottom, 0xA6C97F),
                                 edge(dangoMiddle, 0xFFF7E8), line(dangoMiddle, 0xE6D3AE, 2.2),
                                 edge(dangoTop, 0xFFA9BA),    line(dangoBalls, 0xFFFFFF, 5, 0.75)};
constexpr std::array onigiriLayers{edge(onigiri, 0xFFFEFA), line(onigiri, 0xDCD2C2, 2.2),
                                   line(onigiriGrains, 0xE3DACB, 2.6), fill(onigiriNori, 0x35423A)};
constexpr std::array darumaLayers{edge(daruma, 0xDB463F),           fill(darumaSpot, 0xFBE6CF),
                                  fill(darumaEyes, 0xFFFFFF),       line(darumaPupil, 0x2E2426, 5),
                                  line(darumaBrows, 0x2E2426, 2.8), line(darumaBelly, 0xF6C453, 3),
                                  line(darumaShine, 0xF28D83, 3.4)};
constexpr std::array balloonLayers{line(balloonString, 0x5B4A4E, 2.6), edge(balloon, 0xF2637A),
                                   edge(balloonKnot, 0xD2475F), line(balloonShine, 0xFFC2CB, 5)};

constexpr QPointF belly{133, 210};

struct Hold {
    WumbleKeepsake value;
    Layers layers;
    QPointF off;     ///< from the belly
    double tilt = 0; ///< degrees
    double size = 1;
    double grip = 27; ///< how far each paw is from the middle of the thing
};

constexpr std::array<Hold, 11> belongings{{
    {WumbleKeepsake::book, bookLayers, {0, 4}, -3, 1.12, 39},
    {WumbleKeepsake::tea, teaLayers, {0, 4}, 3, 1.12, 33},
    {WumbleKeepsake::heart, heartLayers, {0, 3}, -5, 1.2, 31},
    {WumbleKeepsake::plant, plantLayers, {82, -3}, 5, 0.95, -66},
    {WumbleKeepsake::crane, craneLayers, {0, 2}, -3, 1.12, 50},
    {WumbleKeepsake::pencil, pencilLayers, {82, -18}, 26, 1.1, -34},
    {WumbleKeepsake::lantern, lanternLayers, {80, 0}, 6, 1.0, -70},
    {WumbleKeepsake::dango, dangoLayers, {84, -34}, dangoTilt, 1, -38},
    {WumbleKeepsake::onigiri, onigiriLayers, {0, 5}, 4, 1.08, 36},
    {WumbleKeepsake::daruma, darumaLayers, {0, 6}, -3, 1, 35},
    {WumbleKeepsake::balloon, balloonLayers, {0, 0}, 0, 1, 0},
}};
static_assert(wumble::isInOrder(belongings));

constexpr double stringEnd = 60; ///< from the balloon's origin to the end of its string

bool stands(const Hold& hold) { return hold.off.x() == 0; }

} // namespace

std::optional<Placed> held(const Stage& stage) {
    if (!stage.shows(wumble::RevealStep::keepsake) || stage.pose.keyboard) {
        return std::nullopt;
    }
    const Hold& hold = wumble::rowOf(belongings, stage.day.traits.keepsake);
    return Placed{hold.layers, stage.seat(belly + hold.off, hold.tilt + stage.pose.sway * 0.25, hold.size)};
}

std::optional<Grip> grip(const Stage& stage) {
    if (!held(stage)) {
        return std::nullopt;
    }
    const Hold& hold = wumble::rowOf(belongings, stage.day.traits.keepsake);
    if (hold.value == WumbleKeepsake::balloon) {
        return Grip{std::nullopt, belly + QPointF(stringEnd, 2)};
    }
    if (!stands(hold)) {
        return Grip{std::nullopt, belly + QPointF(hold.off.x() + hold.grip * 0.4, 3)};
    }
    return Grip{belly + QPointF(-hold.grip, 3), belly + QPointF(hold.grip, 3)};
}

} // namespace quietlark::SoftWumble
