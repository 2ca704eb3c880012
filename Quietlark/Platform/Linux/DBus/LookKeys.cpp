#include "Quietlark/Platform/Linux/DBus/LookKeys.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quietlark::LookKeys {

namespace {

const QString shared = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeForEveryone = QStringLiteral("org.gnome.desktop.a11y.interface");
const QString kdeGeneral = QStringLiteral("org.kde.kdeglobals.General");
const QString kdeMotion = QStringLiteral("org.kde.kdeglobals.KDE");

constexpr double leastTextScale = 0.5;
constexpr double mostTextScale = 3;

QVariant valueOf(const Values& values, const QString& place, const char* key) {
    return values.value(place).value(QLatin1String(key));
}

QString text(const Values& values, const QString& place, const char* key) {
    const QVariant value = valueOf(values, place, key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

/// A wish of the shared namespace; 0 is "no preference".
unsigned wish(const Values& values, const char* key) {
    const QVariant value = valueOf(values, shared, key);
    return value.typeId() == QMetaType::UInt || value.typeId() == QMetaType::Int ? value.toUInt() : 0;
}

std::optional<bool> flag(const Values& values, const QString& place, const char* key) {
    const QVariant value = valueOf(values, place, key);
    return value.typeId() == QMetaType::Bool ? std::optional(value.toBool()) : std::nullopt;
}

bool isDark(const Values& values) {
    constexpr unsigned preferDark = 1;
    if (const unsigned scheme = wish(values, "color-scheme"); scheme != 0) {
        return scheme == preferDark;
    }
    const QString scheme = text(values, gnome, "color-scheme");
    if (scheme == QLatin1String("prefer-dark") || scheme == QLatin1String("prefer-light")) {
        return scheme == QLatin1String("prefer-dark");
    }
    return text(values, gnome, "gtk-theme").endsWith(QLatin1String("-dark"), Qt::CaseInsensitive) ||
           text(values, kdeGeneral, "ColorScheme").contains(QLatin1String("dark"), Qt::CaseInsensitive);
}

bool wantsContrast(const Values& values) {
    return wish(values, "contrast") != 0 || flag(values, gnomeForEveryone, "high-contrast").value_or(false) ||
           text(values, gnome, "gtk-theme").startsWith(QLatin1String("HighContrast"));
}

bool wantsStillness(const Values& values) {
    bool isNumber = false;
    const double factor = text(values, kdeMotion, "AnimationDurationFactor").toDouble(&isNumber);
    return wish(values, "reduced-motion") != 0 || !flag(values, gnome, "enable-animations").value_or(true) ||
           (isNumber && factor == 0);
}

double textScale(const Values& values) {
    const double scale = valueOf(values, gnome, "text-scaling-factor").toDouble();
    return std::isfinite(scale) && scale > 0 ? std::clamp(scale, leastTextScale, mostTextScale) : 1;
}

} // namespace

const QStringList& namespaces() {
    static const QStringList all = {shared, gnome, gnomeForEveryone, kdeGeneral, kdeMotion};
    return all;
}

DesktopLook look(const Values& values) {
    return {.dark = isDark(values),
            .moreContrast = wantsContrast(values),
            .reduceMotion = wantsStillness(values),
            .textScale = textScale(values)};
}

} // namespace quietlark::LookKeys
