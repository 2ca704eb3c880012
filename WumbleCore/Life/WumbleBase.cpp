#include "WumbleCore/Life/WumbleBase.h"
#include "WumbleCore/Foundation/Text.h"

#include <algorithm>

namespace wumble {

namespace {

constexpr std::size_t dailyCount = 18;

constexpr auto everyBase = allCases<WumbleBase>();

constexpr std::array<std::pair<WumbleTone, WumbleTone>, 4> alikeTones{{
    {WumbleTone::pink, WumbleTone::rose},
    {WumbleTone::tan, WumbleTone::yellow},
    {WumbleTone::tan, WumbleTone::brown},
    {WumbleTone::orange, WumbleTone::yellow},
}};

WumbleTone tone(WumbleBase base) { return rowOf(wumbleBases, base).tone; }

} // namespace

std::span<const WumbleBase> dailyBases() { return std::span(everyBase).first(dailyCount); }

bool isSpecial(WumbleBase base) { return static_cast<std::size_t>(base) >= dailyCount; }

std::string name(WumbleBase base) {
    switch (base) {
    case WumbleBase::blackSesame: return "Black Sesame";
    case WumbleBase::thaiTea: return "Thai Tea";
    default: return capitalized(enumText(base));
    }
}

std::string arrivalLine(WumbleBase base) {
    if (const auto line = rowOf(wumbleBases, base).arrival; !line.empty()) {
        return std::string(line);
    }
    const auto special = isSpecial(base) ? " special" : "";
    return std::string("A") + special + " " + lowerCased(name(base)) + " clump showed up, just for today.";
}

WumbleBase wumbleBaseFromStored(std::string_view raw) {
    return enumFromText<WumbleBase>(raw).value_or(WumbleBase::vanilla);
}

bool looksLike(WumbleBase a, WumbleBase b) {
    const std::pair tones{tone(a), tone(b)};
    const std::pair turned{tones.second, tones.first};
    return tones.first == tones.second || std::ranges::find(alikeTones, tones) != alikeTones.end() ||
           std::ranges::find(alikeTones, turned) != alikeTones.end();
}

} // namespace wumble
