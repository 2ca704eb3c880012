#include "Quietlark/Pet/Art/MarkArt.h"
#include "Quietlark/Pet/Stage.h"

namespace quietlark::SoftWumble {

namespace {

using wumble::WumbleBase;
constexpr auto shade = Tint::Slot::shade;
constexpr auto light = Tint::Slot::light;

constexpr Layer soft(Art art, Tint tint, double opacity) { return {art, tint, 0, false, opacity}; }

constexpr std::array sakuraMarks{Layer{sakuraLeaf, 0x9DBB80}, Layer{sakuraRib, 0x7C9C62, 3.2},
                                 Layer{sakuraVeins, 0x7C9C62, 2}};
constexpr std::array kinakoMarks{Layer{kinakoDust, light}, Layer{kinakoGrains, 0xB98F52, 4.2}};
constexpr std::array isobeMarks{Layer{nori, 0x3D4A40}, Layer{noriSheen, 0x5A6A5B},
                                Layer{noriFibre, 0x4F5E51, 2}};
constexpr std::array yuzuMarks{Layer{yuzuPits, shade, 4.4}, Layer{yuzuCalyx, 0x8FAE5B}};
constexpr std::array azukiMarks{Layer{azukiBeans, 0x9C4F58, 10.5}, Layer{azukiGleams, 0xC98A8E, 3}};
constexpr std::array imoMarks{Layer{imoSkin, 0x97608C}, Layer{imoEdge, 0xFFF0C2, 4},
                              Layer{imoPits, 0x7B4A73, 2.6}};
constexpr std::array yomogiMarks{Layer{yomogiFlecks, 0x6F8C55, 2.8}, Layer{yomogiDots, 0x6F8C55, 3.4}};
constexpr std::array ramuneMarks{Layer{ramuneBubbles, 0x8CC9D6, 14}, Layer{ramuneBubbles, light, 11},
                                 Layer{ramuneFizz, 0x8CC9D6, 9}, Layer{ramuneFizz, light, 6},
                                 Layer{ramuneGleams, 0xFFFFFF, 3}};
constexpr std::array hojichaMarks{Layer{hojichaTwigs, 0x7F563C, 3}};
constexpr std::array mameMarks{Layer{mameBeans, 0x564650, 17}, Layer{mameGleams, 0x8E7E89, 3.6}};
constexpr std::array kuriMarks{Layer{kuriNut, 0x925A3B}, Layer{kuriSheen, 0xBF8760},
                               Layer{kuriBase, 0xB98A55, 4}};
constexpr std::array strawberryMarks{Layer{strawberrySeeds, 0xFFEFC4}, Layer{strawberryLeaf, 0x86B56B}};
constexpr std::array mitarashiMarks{Layer{mitarashiGlaze, 0xB26E33}, Layer{mitarashiShine, 0xE3AC6D}};
constexpr std::array hanamiMarks{Layer{hanamiPink, 0xFBC3CF}, Layer{hanamiGreen, 0xB4CE96}};
constexpr std::array sesameMarks{Layer{sesameSeed, 0x443D45, 5}};
constexpr std::array peachMarks{soft(peachBlush, 0xFA9684, 0.55), Layer{peachCleft, shade, 4}};
constexpr std::array matchaMarks{Layer{matchaPowder, 0x7E9F4F}, Layer{matchaDust, 0x7E9F4F, 3.6}};
constexpr std::array vanillaMarks{Layer{speckles, 0x6B5340, 3}};
constexpr std::array taroMarks{Layer{taroSwirl, 0xAE8FCC}, Layer{taroSwirlLow, 0xAE8FCC}};
constexpr std::array pandanMarks{Layer{pandanCrease, 0x6FAA69, 4}};
constexpr std::array coconutMarks{Layer{coconutShell, 0x94694C}, Layer{coconutFibre, 0x714B34, 2.6},
                                  Layer{coconutFlakes, 0xDDD3C5, 3.4}};
constexpr std::array mangoMarks{soft(mangoBlush, 0xF78C52, 0.6), Layer{mangoCuts, 0xF2A23A, 3.4}};
constexpr std::array blueberryMarks{Layer{blueberryBloom, light, 9}, Layer{blueberryCalyx, 0x6B79B8},
                                    Layer{blueberryEye, 0x4D5A96}};
constexpr std::array cocoaMarks{Layer{cocoaSwirl, 0x7E5442, 6}};
constexpr std::array thaiTeaMarks{Layer{thaiTeaRibbon, 0xFFF0DC}};

struct Marks {
    WumbleBase value;
    Layers layers;
    Texture texture = Texture::within;
};

constexpr std::array<Marks, 26> marks{{
    {WumbleBase::plain, {}},
    {WumbleBase::sakura, sakuraMarks, Texture::overTheEdge},
    {WumbleBase::kinako, kinakoMarks, Texture::overTheEdge},
    {WumbleBase::isobe, isobeMarks, Texture::overTheEdge},
    {WumbleBase::yuzu, yuzuMarks},
    {WumbleBase::azuki, azukiMarks},
    {WumbleBase::imo, imoMarks, Texture::overTheEdge},
    {WumbleBase::yomogi, yomogiMarks},
    {WumbleBase::ramune, ramuneMarks},
    {WumbleBase::hojicha, hojichaMarks},
    {WumbleBase::mame, mameMarks},
    {WumbleBase::kuri, kuriMarks, Texture::overTheEdge},
    {WumbleBase::strawberry, strawberryMarks},
    {WumbleBase::mitarashi, mitarashiMarks, Texture::overTheEdge},
    {WumbleBase::hanami, hanamiMarks, Texture::overTheEdge},
    {WumbleBase::blackSesame, sesameMarks},
    {WumbleBase::peach, peachMarks, Texture::overTheEdge},
    {WumbleBase::matcha, matchaMarks, Texture::overTheEdge},
    {WumbleBase::vanilla, vanillaMarks},
    {WumbleBase::taro, taroMarks, Texture::overTheEdge},
    {WumbleBase::pandan, pandanMarks},
    {WumbleBase::coconut, coconutMarks, Texture::overTheEdge},
    {WumbleBase::mango, mangoMarks, Texture::overTheEdge},
    {WumbleBase::blueberry, blueberryMarks},
    {WumbleBase::cocoa, cocoaMarks},
    {WumbleBase::thaiTea, thaiTeaMarks, Texture::overTheEdge},
}};
static_assert(wumble::isInOrder(marks));

} // namespace

Texture drawTexture(QPainter& painter, const Stage& stage) {
    const PainterScope scope(painter);
    const auto& row = wumble::rowOf(marks, stage.day.base);
    for (const Layer& layer : row.layers) {
        drawLayer(painter, stage, layer, stage.soft.bendy(layer.art.path()));
    }
    return row.texture;
}

} // namespace quietlark::SoftWumble
