#include "Quietlark/Pet/Palette.h"

namespace quietlark {

namespace {

using wumble::WumbleBase;

struct Flavour {
    WumbleBase value;
    std::uint32_t body;
    std::uint32_t shade;
    std::uint32_t light;
};

/// The shade is a little darker and warmer than the body, the light a little lighter.
constexpr std::array<Flavour, 26> flavours{{
    {WumbleBase::plain, 0xF9F4EC, 0xE6DACB, 0xFFFFFF},
    {WumbleBase::sakura, 0xFFD2DC, 0xF1AFBD, 0xFFE9EE},
    {WumbleBase::kinako, 0xE9CC94, 0xD3AE70, 0xF6E3BC},
    {WumbleBase::isobe, 0xF7F0E0, 0xE3D5BC, 0xFFFCF3},
    {WumbleBase::yuzu, 0xFFE47C, 0xF0C548, 0xFFF3B5},
    {WumbleBase::azuki, 0xD79C9E, 0xBD7C7E, 0xE8BDBD},
    {WumbleBase::imo, 0xFADF8E, 0xE6BF62, 0xFFEFBC},
    {WumbleBase::yomogi, 0xB7CC9C, 0x9AB27D, 0xD1E0BC},
    {WumbleBase::ramune, 0xBDE7EC, 0x94CDD7, 0xE0F7F8},
    {WumbleBase::hojicha, 0xC8A082, 0xAC8163, 0xDDBFA7},
    {WumbleBase::mame, 0xF5EDDC, 0xDFD0B8, 0xFFFAF0},
    {WumbleBase::kuri, 0xEBCB9A, 0xD4AB73, 0xF7E2C0},
    {WumbleBase::strawberry, 0xFFAFB2, 0xEE8C92, 0xFFD2D2},
    {WumbleBase::mitarashi, 0xF3DDB4, 0xDCBB86, 0xFCF0D6},
    {WumbleBase::hanami, 0xFAF5EA, 0xE5DAC8, 0xFFFFFF},
    {WumbleBase::blackSesame, 0xC2BEC1, 0xA59FA3, 0xDAD7D9},
    {WumbleBase::peach, 0xFFCEAE, 0xF2AC88, 0xFFE5D2},
    {WumbleBase::matcha, 0xA6C57C, 0x88A95E, 0xC6DDA6},
    {WumbleBase::vanilla, 0xFFF2D0, 0xEFDBAE, 0xFFFBEC},
    {WumbleBase::taro, 0xD2BDE6, 0xB59DCF, 0xE7DAF2},
    {WumbleBase::pandan, 0xAFDDA3, 0x8BC184, 0xCFEEC6},
    {WumbleBase::coconut, 0xFCFAF5, 0xE6DFD5, 0xFFFFFF},
    {WumbleBase::mango, 0xFFCC62, 0xF3A945, 0xFFE29C},
    {WumbleBase::blueberry, 0xAEBBE9, 0x8D9BD1, 0xD0D8F4},
    {WumbleBase::cocoa, 0xB48B74, 0x966C57, 0xCDAB98},
    {WumbleBase::thaiTea, 0xF8B581, 0xE6935A, 0xFDD3AF},
}};
static_assert(wumble::isInOrder(flavours));

} // namespace

QColor Palette::of(Tint tint) const {
    switch (tint.slot) {
    case Tint::Slot::body: return body;
    case Tint::Slot::shade: return shade;
    case Tint::Slot::light: return light;
    case Tint::Slot::ink: return ink;
    case Tint::Slot::own: break;
    }
    return QColor::fromRgb(tint.rgb);
}

QColor Palette::paw() const {
    return {(body.red() + light.red()) / 2, (body.green() + light.green()) / 2,
            (body.blue() + light.blue()) / 2};
}

QColor Palette::edge() const { return shade.darker(118); }

QColor Palette::cheek(bool freckled) const {
    constexpr QRgb rose = 0xF2787F;
    constexpr QRgb nut = 0x95522F;
    QColor colour = QColor::fromRgb(freckled ? nut : rose);
    colour.setAlphaF(freckled ? 0.75F : 0.5F);
    return colour;
}

Palette palette(WumbleBase base) {
    const auto& row = wumble::rowOf(flavours, base);
    return {QColor::fromRgb(row.body), QColor::fromRgb(row.shade), QColor::fromRgb(row.light),
            QColor::fromRgb(defaultInk)};
}

} // namespace quietlark
