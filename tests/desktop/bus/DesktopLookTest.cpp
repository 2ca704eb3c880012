#include "Quietlark/Platform/Linux/DBus/LookKeys.h"
#include "tests/desktop/bus/BusDesktop.h"

#include <cmath>

namespace quietlark::test {

namespace {

using PortalDesktopLook = BusTest;

constexpr const char* portal = "org.freedesktop.portal.Desktop";

struct Setting {
    const char* place;
    const char* key;
    QVariant value;
};

struct Case {
    const char* name;
    std::vector<Setting> settings;
    DesktopLook look;
};

const char* const shared = "org.freedesktop.appearance";
const char* const gnome = "org.gnome.desktop.interface";
const char* const gnomeForEveryone = "org.gnome.desktop.a11y.interface";

DesktopLook lookOf(const std::vector<Setting>& settings) {
    LookKeys::Values values;
    for (const Setting& setting : settings) {
        values[QLatin1String(setting.place)][QLatin1String(setting.key)] = setting.value;
    }
    return LookKeys::look(values);
}

QString text(const char* words) { return QString::fromLatin1(words); }

} // namespace

TEST(LookKeys, theSharedSettingWinsWhereItStatesAWishAndTheDesktopsOwnDecidesOtherwise) {
    const DesktopLook plain;
    const DesktopLook dark{.dark = true};
    const DesktopLook contrast{.moreContrast = true};
    const DesktopLook still{.reduceMotion = true};
    const std::vector<Case> cases = {
        {"nothing known", {}, plain},
        {"dark everywhere", {{shared, "color-scheme", 1u}}, dark},
        {"light for all, a dark theme",
         {{shared, "color-scheme", 2u}, {gnome, "gtk-theme", text("Yaru-dark")}},
         plain},
        {"no wish, a dark theme",
         {{shared, "color-scheme", 0u}, {gnome, "gtk-theme", text("Adwaita-Dark")}},
         dark},
        {"light preferred, a dark theme",
         {{gnome, "color-scheme", text("prefer-light")}, {gnome, "gtk-theme", text("Adwaita-dark")}},
         plain},
        {"default scheme, a dark theme",
         {{gnome, "color-scheme", text("default")}, {gnome, "gtk-theme", text("Mint-Y-dark")}},
         dark},
        {"KDE's scheme", {{"org.kde.kdeglobals.General", "ColorScheme", text("BreezeDark")}}, dark},
        {"more contrast everywhere", {{shared, "contrast", 1u}}, contrast},
        {"GNOME's contrast", {{gnomeForEveryone, "high-contrast", true}}, contrast},
        {"a theme of contrast", {{gnome, "gtk-theme", text("HighContrast")}}, contrast},
        {"less motion everywhere", {{shared, "reduced-motion", 1u}}, still},
        {"GNOME without animations", {{gnome, "enable-animations", false}}, still},
        {"KDE's animations at once",
         {{"org.kde.kdeglobals.KDE", "AnimationDurationFactor", text("0")}},
         still},
        {"KDE's animations faster",
         {{"org.kde.kdeglobals.KDE", "AnimationDurationFactor", text("0.5")}},
         plain},
        {"larger text", {{gnome, "text-scaling-factor", 1.5}}, {.textScale = 1.5}},
        {"absurdly large text", {{gnome, "text-scaling-factor", 40.0}}, {.textScale = 3}},
        {"text of no size", {{gnome, "text-scaling-factor", 0.0}}, plain},
        {"text that is no number", {{gnome, "text-scaling-factor", std::nan("")}}, plain},
        {"values of the wrong kind",
         {{shared, "color-scheme", text("dark")}, {gnome, "enable-animations", text("false")}},
         plain},
    };
    for (const Case& example : cases) {
        EXPECT_EQ(lookOf(example.settings), example.look) << example.name;
    }
}

TEST_F(PortalDesktopLook, isReadWhenThePortalComesAndFollowedWhileItRuns) {
    makeServices();
    int changes = 0;
    services.look->observe([&] { ++changes; });
    runAWhile();
    EXPECT_EQ(services.look->look(), DesktopLook());
    DesktopService service(session, "settings-portal", portal);
    service.order("org.freedesktop.appearance color-scheme u 1");
    EXPECT_TRUE(comesTrue([&] { return services.look->look().dark; }));
    service.order("org.gnome.desktop.interface enable-animations b false");
    EXPECT_TRUE(comesTrue([&] { return services.look->look().reduceMotion; }));
    service.order("org.gnome.desktop.interface font-name s Cantarell");
    service.order("org.example.other color-scheme u 0");
    runAWhile();
    EXPECT_EQ(services.look->look(), (DesktopLook{.dark = true, .reduceMotion = true}));
    EXPECT_EQ(changes, 2);
}

TEST_F(PortalDesktopLook, standsWhileThePortalIsGoneAndIsReadAnewFromTheNext) {
    auto first = std::make_unique<DesktopService>(session, "settings-portal", portal);
    makeServices();
    first->order("org.freedesktop.appearance color-scheme u 1");
    EXPECT_TRUE(comesTrue([&] { return services.look->look().dark; }));
    first.reset();
    runAWhile();
    EXPECT_TRUE(services.look->look().dark);
    const DesktopService second(session, "settings-portal", portal);
    EXPECT_TRUE(comesTrue([&] { return !services.look->look().dark; }));
}

TEST_F(PortalDesktopLook, nobodyWaitsForAPortalThatStandsStill) {
    DesktopService service(session, "settings-portal", portal);
    service.freeze();
    makeServices();
    runAWhile();
    EXPECT_EQ(services.look->look(), DesktopLook());
    waits.expectShort();
}

} // namespace quietlark::test
