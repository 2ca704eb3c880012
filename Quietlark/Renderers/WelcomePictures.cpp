#include "Quietlark/Renderers/PetSheets.h"
#include "Quietlark/Renderers/PressNamed.h"
#include "Quietlark/Renderers/PreviewStage.h"
#include "Quietlark/Renderers/Sheet.h"
#include "Quietlark/Settings/SettingsView.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Welcome/WelcomeView.h"

#include <string>
#include <vector>

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

using Presses = std::vector<std::string_view>;

/// A whole view in front of the model of `stage`, after what is pressed in it.
template <typename View> QImage picture(PreviewStage& stage, const Presses& presses, double scale) {
    stage.start();
    NoLogin login;
    View view(stage.model, &login);
    view.setAttribute(Qt::WA_DontShowOnScreen);
    setAppearance(view, stage.appearance.value());
    view.show();
    for (const std::string_view name : presses) {
        pressNamed(view, name);
    }
    stage.advance(0.5);
    view.resize(view.sizeHint());
    QImage image(view.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    view.render(&image);
    return image;
}

QImage welcome(const Appearance& appearance, double scale, const Presses& presses = {}) {
    PreviewStage stage(
        appearance, [](auto&) {}, 0);
    return picture<WelcomeView>(stage, presses, scale);
}

QImage settings(const Appearance& appearance, double scale) {
    constexpr int revealed = 4;
    constexpr int restDays = 9;
    PreviewStage stage(
        appearance, [](auto&) {}, revealed, restDays);
    return picture<SettingsView>(stage, {}, scale);
}

} // namespace

bool renderWelcomePictures(const std::filesystem::path& folder, Appearance appearance) {
    const Presses customize{WelcomeWords::customize};
    bool saved = save(welcome(appearance, 2), folder, "welcome.png");
    saved = save(welcome(appearance, 1), folder, "welcome-1x.png") && saved;
    saved = save(welcome(appearance, 2, customize), folder, "welcome-customized.png") && saved;
    saved = save(settings(appearance, 2), folder, "settings.png") && saved;
    appearance.textScale = 1.5;
    saved = save(settings(appearance, 1), folder, "settings-large-text.png") && saved;
    return save(welcome(appearance, 1, customize), folder, "welcome-large-text.png") && saved;
}

} // namespace quietlark
