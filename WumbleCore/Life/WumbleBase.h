#pragma once

#include "WumbleCore/Life/Vocabulary.h"

#include <span>
#include <string>

namespace wumble {

/// The pet's flavour.
enum class WumbleBase {
    plain,
    sakura,
    kinako,
    isobe,
    yuzu,
    azuki,
    imo,
    yomogi,
    ramune,
    hojicha,
    mame,
    kuri,
    strawberry,
    mitarashi,
    hanami,
    blackSesame,
    peach,
    matcha,
    vanilla,
    taro,
    pandan,
    coconut,
    mango,
    blueberry,
    cocoa,
    thaiTea,
};

/// The family of colours that a flavour belongs to.
enum class WumbleTone { white, green, pink, rose, brown, tan, yellow, gray, aqua, lavender, blue, orange };

struct WumbleBaseRow {
    WumbleBase value;
    std::string_view raw;
    WumbleTone tone;
    std::string_view arrival; ///< empty: the line is built
};

inline constexpr std::array<WumbleBaseRow, 26> wumbleBases{{
    {WumbleBase::plain, "plain", WumbleTone::white, "A plain little clump, soft as a cloud."},
    {WumbleBase::sakura, "sakura", WumbleTone::pink, "A sakura clump drifted in with the petals."},
    {WumbleBase::kinako, "kinako", WumbleTone::tan, "A kinako clump rolled in, dusted and toasty."},
    {WumbleBase::isobe, "isobe", WumbleTone::white, "An isobe clump showed up, wrapped in nori."},
    {WumbleBase::yuzu, "yuzu", WumbleTone::yellow, "A yuzu clump bounced in, bright and zesty."},
    {WumbleBase::azuki, "azuki", WumbleTone::rose, "An azuki clump arrived, sweet beans and all."},
    {WumbleBase::imo, "imo", WumbleTone::yellow, "An imo clump waddled in, warm as a sweet potato."},
    {WumbleBase::yomogi, "yomogi", WumbleTone::green, "A yomogi clump came in from the meadow."},
    {WumbleBase::ramune, "ramune", WumbleTone::aqua, "A ramune clump fizzed in."},
    {WumbleBase::hojicha, "hojicha", WumbleTone::brown, "A hojicha clump arrived, smelling of roasted tea."},
    {WumbleBase::mame, "mame", WumbleTone::white, "A mame clump showed up, sprinkled with beans."},
    {WumbleBase::kuri, "kuri", WumbleTone::tan, "A kuri clump rolled in from the chestnut trees."},
    {WumbleBase::strawberry, "strawberry", WumbleTone::pink,
     "A strawberry clump showed up, a little blushy."},
    {WumbleBase::mitarashi, "mitarashi", WumbleTone::tan, "A mitarashi clump arrived, glazed and glossy."},
    {WumbleBase::hanami, "hanami", WumbleTone::white, "A hanami clump came in wearing three colors."},
    {WumbleBase::blackSesame, "black-sesame", WumbleTone::gray,
     "A black sesame clump arrived, speckled and nutty."},
    {WumbleBase::peach, "peach", WumbleTone::pink, "A peach clump showed up, fuzzy and sweet."},
    {WumbleBase::matcha, "matcha", WumbleTone::green, "A matcha clump arrived, calm and green."},
    {WumbleBase::vanilla, "vanilla", WumbleTone::white, ""},
    {WumbleBase::taro, "taro", WumbleTone::lavender, ""},
    {WumbleBase::pandan, "pandan", WumbleTone::green, ""},
    {WumbleBase::coconut, "coconut", WumbleTone::white, ""},
    {WumbleBase::mango, "mango", WumbleTone::yellow, ""},
    {WumbleBase::blueberry, "blueberry", WumbleTone::blue, ""},
    {WumbleBase::cocoa, "cocoa", WumbleTone::brown, ""},
    {WumbleBase::thaiTea, "thai-tea", WumbleTone::orange, ""},
}};
static_assert(isInOrder(wumbleBases));

template <> struct EnumTexts<WumbleBase> { static constexpr auto table = rawTexts(wumbleBases); };

/// The flavours that turn up by themselves, in declared order.
std::span<const WumbleBase> dailyBases();

bool isSpecial(WumbleBase base);

/// "Black Sesame"
std::string name(WumbleBase base);

/// The line with which a pet of that flavour turns up.
std::string arrivalLine(WumbleBase base);

/// The flavour of a stored text; one that isn't known is vanilla.
WumbleBase wumbleBaseFromStored(std::string_view raw);

/// Whether two flavours are hard to tell apart in a row. Symmetric, but not transitive: brown and yellow differ
/// although each is like tan.
bool looksLike(WumbleBase a, WumbleBase b);

} // namespace wumble
