#pragma once

#include "Quietlark/Theme/Appearance.h"

#include "WumbleCore/Foundation/EnumTexts.h"

#include <QColor>
#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace quietlark {

/// What a colour is for.
enum class Role {
    page,
    sidebar,
    card,
    raised,
    field,
    text,
    textMuted,
    onPop, ///< text and marks on one of the pop colours
    onPopMuted,
    line,
    mark,
    shadow,
    rule,
    dieCut,  ///< the rim of a sticker
    keyline, ///< and the line around it
    grain,
    popWell,
    selected,
    onSelected,
    go, ///< the way on
    time,
    wumble,
    personality,
    live, ///< what runs now
    wordmarkWumble,
    tide,
};

struct RoleRow {
    Role value;
    std::string_view raw;
    std::uint32_t light;
    std::uint32_t dark;
    std::optional<std::uint32_t> lightContrast = std::nullopt; ///< absent: as without more contrast
    std::optional<std::uint32_t> darkContrast = std::nullopt;
};

inline constexpr std::array<RoleRow, 26> roles{{
    {Role::page, "page", 0xF2F2EC, 0x141418},
    {Role::sidebar, "sidebar", 0xF8F8F3, 0x19191E},
    {Role::card, "card", 0xFFFFFF, 0x1F1F25},
    {Role::raised, "raised", 0xFFFFFF, 0x1F1F25},
    {Role::field, "field", 0xFFFFFF, 0x141418},
    {Role::text, "text", 0x141418, 0xF2F2EC},
    {Role::textMuted, "textMuted", 0x5C5C64, 0xA9A9B1, 0x3E3E45, 0xCFCFD6},
    {Role::onPop, "onPop", 0x141418, 0x141418},
    {Role::onPopMuted, "onPopMuted", 0x5C5C64, 0x5C5C64, 0x3E3E45, 0x3E3E45},
    {Role::line, "line", 0x141418, 0xE4E4DB},
    {Role::mark, "mark", 0x141418, 0xE4E4DB},
    {Role::shadow, "shadow", 0x141418, 0xD6D6CD},
    {Role::rule, "rule", 0xD6D6CE, 0x3A3A42, 0x9C9C94, 0x64646C},
    {Role::dieCut, "dieCut", 0xFFFFFF, 0x141418},
    {Role::keyline, "keyline", 0x141418, 0xE4E4DB},
    {Role::grain, "grain", 0xD6D6CE, 0x26262D},
    {Role::popWell, "popWell", 0xFFFFFF, 0xE4E4DB},
    {Role::selected, "selected", 0x141418, 0x9E9E98},
    {Role::onSelected, "onSelected", 0xF2F2EC, 0x141418},
    {Role::go, "go", 0xC9F25C, 0xC9F25C},
    {Role::time, "time", 0xFFC94A, 0xFFC94A},
    {Role::wumble, "wumble", 0x7FD8EA, 0x7FD8EA},
    {Role::personality, "personality", 0xB8A3FF, 0xB8A3FF},
    {Role::live, "live", 0xFF9466, 0xFF9466},
    {Role::wordmarkWumble, "wordmarkWumble", 0x0E8B94, 0x9BE3E0},
    {Role::tide, "tide", 0xA5E4F0, 0x2C5C66},
}};

/// The role's colour as that appearance wants it.
QColor colour(Role role, Appearance appearance);

/// "wumble.page"
std::string colourName(Role role);

} // namespace quietlark
