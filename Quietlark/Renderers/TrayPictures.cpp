#include "Quietlark/Renderers/PetSheets.h"
#include "Quietlark/Renderers/PressNamed.h"
#include "Quietlark/Renderers/PreviewStage.h"
#include "Quietlark/Renderers/Sheet.h"
#include "Quietlark/Surfaces/Tray/StatusItemController.h"

#include <QApplication>
#include <QWidget>

#include <array>
#include <string>

namespace quietlark {

namespace {

constexpr const char* popover = "popover";
constexpr QPointF clickInPanel{1100, 12};

/// A panel that shows whatever it is given.
struct AnyPanel final : TrayItem {
    bool isShown() const override { return true; }
    std::optional<bool> isPanelDark() const override { return std::nullopt; }
    void setPictures(std::vector<QImage>) override {}
    void setTitle(const std::string&) override {}
    void setLabel(const std::string&) override {}
    void setMenu(std::vector<TrayMenuRow>) override {}
    void observeActivation(Activated) override {}
};

struct CallMicrophone final : Microphone {
    bool ready() const override { return true; }
    void refresh(double) override {}
    std::optional<std::vector<AppRef>> recordingApps() const override {
        return std::vector{AppRef{.pid = 5, .name = "Zoom"}};
    }
    bool physicalMicrophoneRunning() const override { return false; }
};

/// The program on a stage, its popover open.
struct Show {
    explicit Show(
        const Appearance& look, const PreviewStage::Choose& choose = [](auto&) {}, int revealed = 4)
        : stage(look, choose, revealed), tray(stage.context(), panel, {}) {
        stage.model.install({.statusItem = &tray});
        stage.host.setPointer(clickInPanel);
    }

    void open() {
        if (!tray.isPopoverShown()) {
            tray.toggle(clickInPanel);
        }
        stage.advance(0.1);
    }

    /// Presses the button of that name in the popover.
    void press(std::string_view name) {
        open();
        for (const QWidget* root : QApplication::topLevelWidgets()) {
            if (root->objectName() == QLatin1String(popover) && pressNamed(*root, name)) {
                stage.advance(0.1);
                return;
            }
        }
    }

    void onACall() { stage.platform.microphone = std::make_unique<CallMicrophone>(); }

    PreviewStage stage;
    AnyPanel panel;
    StatusItemController tray;
};

struct Scene {
    const char* name;
    double minutes; ///< of work before the picture
    void (*play)(Show&);
    void (*choose)(wumble::WumbleSettings&) = [](wumble::WumbleSettings&) {};
};

void allowSkips(wumble::WumbleSettings& settings) {
    settings.allowSkipInAdvance = true;
    settings.countdownDuration = 0;
}

void onlyInTheAfternoon(wumble::WumbleSettings& settings) {
    settings.officeHoursEnabled = true;
    for (auto& day : settings.officeHours) {
        day.startMinute = wumble::Counter{13} * 60;
    }
}

const std::array scenes{
    Scene{"working", 4, [](Show&) {}, allowSkips},
    Scene{"call-before-the-break", 12,
          [](Show& show) {
              show.onACall();
              show.stage.advance(9);
          }},
    Scene{"call-holds-the-break", 12,
          [](Show& show) {
              show.onACall();
              show.stage.advance(9 * 60);
          }},
    Scene{"not-waiting", 12,
          [](Show& show) {
              show.onACall();
              show.stage.advance(9 * 60);
              show.stage.model.ignoreSmartPause();
          }},
    Scene{"waits-again", 12,
          [](Show& show) {
              show.onACall();
              show.stage.advance(9 * 60);
              show.stage.model.ignoreSmartPause();
              show.press(TrayWords::waitAgain);
          }},
    Scene{"typing", 19.9,
          [](Show& show) {
              show.stage.desktop.secondsSinceKeyDown = 0.2;
              show.stage.advance(12);
          }},
    Scene{"paused-for-an-hour", 4, [](Show& show) { show.stage.model.pause(3600, Asked::menu); }},
    Scene{"paused-openly", 4, [](Show& show) { show.stage.model.pause(std::nullopt, Asked::menu); }},
    Scene{"off", 4, [](Show& show) { show.stage.model.toggleRunning(); }},
    Scene{"off-hours", 1, [](Show&) {}, onlyInTheAfternoon},
    Scene{"other-breaks", 4, [](Show& show) { show.press(TrayWords::otherBreaks); }, allowSkips},
    Scene{"pauses", 4, [](Show& show) { show.press("Pause"); }, allowSkips},
    Scene{"more", 4, [](Show& show) { show.press(TrayWords::more); }},
    Scene{"long-name", 4,
          [](Show& show) {
              show.stage.model.renameWumble("Wumblefritz von und zu Habenichts der Allerletzte");
          }},
    Scene{"other-script", 4,
          [](Show& show) { show.stage.model.renameWumble("\u0648\u0648\u0645\u0628\u0644 \U0001F361"); }},
};

QImage picture(const Scene& scene, const Appearance& appearance, double scale) {
    Show show(appearance, scene.choose);
    show.stage.start();
    show.stage.advance(scene.minutes * 60);
    scene.play(show);
    show.open();
    return show.stage.pictureOf(popover, scale);
}

} // namespace

bool renderTrayPictures(const std::filesystem::path& folder, Appearance appearance) {
    bool saved = true;
    for (const Scene& scene : scenes) {
        const std::string name = std::string("popover-") + scene.name;
        saved = save(picture(scene, appearance, 2), folder, name + ".png") && saved;
    }
    saved = save(picture(scenes.front(), appearance, 1), folder, "popover-working-1x.png") && saved;
    Appearance sharp = appearance;
    sharp.moreContrast = true;
    saved = save(picture(scenes.front(), sharp, 2), folder, "popover-high-contrast.png") && saved;
    appearance.textScale = 1.5;
    return save(picture(scenes.front(), appearance, 2), folder, "popover-large-text.png") && saved;
}

} // namespace quietlark
