#include "Quietlark/Renderers/PetSheets.h"
#include "Quietlark/Renderers/PressNamed.h"
#include "Quietlark/Renderers/PreviewStage.h"
#include "Quietlark/Renderers/Sheet.h"
#include "Quietlark/Settings/SettingsView.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Welcome/WelcomeView.h"

#include <array>
#include <string>

namespace quietlark {

namespace {

/// Of a copy that lies where it may be gone tomorrow.
struct NoLogin final : LoginItem {
    bool isEnabled() const override { return false; }
    bool canRegister() const override { return false; }
    std::optional<std::string> set(bool) override {
        return "Open at login only works for an installed copy of Quietlark.";
    }
};

struct Scene {
    const char* name;
    std::vector<std::string_view> presses;
};

const std::array scenes{
    Scene{"welcome", {}},
    Scene{"welcome-customized", {WelcomeWords::customize}},
};

QImage drawn(QWidget& view, double scale) {
    view.resize(view.sizeHint());
    QImage image(view.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    view.render(&image);
    return image;
}

QImage picture(const Scene& scene, const Appearance& appearance, double scale) {
    PreviewStage stage(
        appearance, [](auto&) {}, 0);
    stage.start();
    NoLogin login;
    WelcomeView view(stage.model, &login);
    view.setAttribute(Qt::WA_DontShowOnScreen);
    setAppearance(view, appearance);
    view.refresh();
    view.show();
    for (const std::string_view name : scene.presses) {
        pressNamed(view, name);
    }
    stage.advance(0.5);
    return drawn(view, scale);
}

QImage settingsPicture(const Appearance& appearance, double scale) {
    constexpr int restDays = 9;
    PreviewStage stage(
        appearance, [](auto&) {}, 4, restDays);
    stage.start();
    NoLogin login;
    SettingsView view(stage.model, &login);
    view.setAttribute(Qt::WA_DontShowOnScreen);
    setAppearance(view, appearance);
    view.show();
    stage.advance(0.5);
    return drawn(view, scale);
}

} // namespace

bool renderWelcomePictures(const std::filesystem::path& folder, Appearance appearance) {
    bool saved = true;
    for (const Scene& scene : scenes) {
        saved = save(picture(scene, appearance, 2), folder, std::string(scene.name) + ".png") && saved;
    }
    saved = save(picture(scenes.front(), appearance, 1), folder, "welcome-1x.png") && saved;
    saved = save(settingsPicture(appearance, 2), folder, "settings.png") && saved;
    appearance.textScale = 1.5;
    saved = save(settingsPicture(appearance, 1), folder, "settings-large-text.png") && saved;
    return save(picture(scenes.back(), appearance, 1), folder, "welcome-large-text.png") && saved;
}

} // namespace quietlark
