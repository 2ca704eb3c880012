#include "Quietlark/Theme/Role.h"

#include "WumbleCore/Life/Vocabulary.h"

namespace quietlark {

static_assert(wumble::isInOrder(roles));

QColor colour(Role role, Appearance appearance) {
    const auto& row = wumble::rowOf(roles, role);
    const auto plain = appearance.dark ? row.dark : row.light;
    const auto& contrast = appearance.dark ? row.darkContrast : row.lightContrast;
    return QColor::fromRgb(appearance.moreContrast ? contrast.value_or(plain) : plain);
}

std::string colourName(Role role) { return "wumble." + std::string(wumble::rowOf(roles, role).raw); }

} // namespace quietlark
