#include "Quietlark/Surfaces/InstalledSurfaces.h"

#include "Quietlark/Surfaces/BreakScreen/BreakOverlayController.h"
#include "Quietlark/Surfaces/Notes/CountdownController.h"
#include "Quietlark/Surfaces/Notes/HeadsUpController.h"
#include "Quietlark/Surfaces/Notes/ToastController.h"
#include "Quietlark/Surfaces/Nudges/NudgeCards.h"
#include "Quietlark/Surfaces/Tray/StatusItemController.h"
#include "Quietlark/Theme/Sizes.h"

#include <QPalette>
#include <QToolTip>

#include <optional>

namespace quietlark {

/// One member for each controller; what a new one offers to the model is named in `surfaces`.
struct InstalledSurfaces::Controllers {
    Controllers(const SurfaceContext& shared, const SurfaceServices& services)
        : context(shared), overlay(context, services.screenLock) {
        if (services.tray != nullptr) {
            statusItem.emplace(context, *services.tray, services.doors);
        }
    }

    Surfaces surfaces() {
        return {.statusItem = statusItem ? &*statusItem : nullptr,
                .headsUp = &headsUp,
                .overlay = &overlay,
                .toasts = &toasts,
                .countdown = &countdown};
    }

    SurfaceContext context;
    BreakOverlayController overlay;
    NudgeCards nudgeCards{context};
    HeadsUpController headsUp{context};
    CountdownController countdown{context};
    ToastController toasts{context,
                           [this](const auto& toast, const auto& screen, Card* old, const auto& calls) {
                               return nudgeCards.make(toast, screen, old, calls);
                           }};
    std::optional<StatusItemController> statusItem;
};

Appearance appearanceFor(const DesktopLook& look, wumble::Appearance choice) {
    const bool followsDesktop = choice == wumble::Appearance::system;
    return {.dark = followsDesktop ? look.dark : choice == wumble::Appearance::dark,
            .moreContrast = look.moreContrast,
            .reduceMotion = look.reduceMotion,
            .reduceTransparency = look.reduceTransparency,
            .textScale = look.textScale};
}

namespace {

void colourTips(const Appearance& appearance) {
    QPalette colours;
    colours.setColor(QPalette::ToolTipBase, colour(Surface::card, appearance));
    colours.setColor(QPalette::ToolTipText, colour(Role::text, appearance));
    QToolTip::setPalette(colours);
}

} // namespace

InstalledSurfaces::InstalledSurfaces(const SurfaceServices& services)
    : model_(services.model), desktopLook_(services.desktopLook),
      settingsFollowed_(observe(model_.state().settings, [this] { refreshAppearance(); })) {
    refreshAppearance();
    if (desktopLook_) {
        desktopLook_->observe([this] { refreshAppearance(); });
    }
    controllers_ = std::make_unique<Controllers>(SurfaceContext{.model = model_,
                                                                .loop = services.loop,
                                                                .host = services.host,
                                                                .windows = services.windows,
                                                                .accessibility = services.accessibility,
                                                                .appearance = appearance_},
                                                 services);
    model_.install(controllers_->surfaces());
}

InstalledSurfaces::~InstalledSurfaces() {
    model_.install({});
    if (desktopLook_) {
        desktopLook_->observe({});
    }
}

void InstalledSurfaces::prepare() { controllers_->overlay.prepare(); }

void InstalledSurfaces::openPopover() {
    if (auto& item = controllers_->statusItem; item && !item->isPopoverShown()) {
        item->toggle(std::nullopt);
    }
}

void InstalledSurfaces::refreshAppearance() {
    const DesktopLook look = desktopLook_ ? desktopLook_->look() : DesktopLook{};
    appearance_ = appearanceFor(look, model_.state().settings.value().appearance);
    colourTips(appearance_.value());
}

} // namespace quietlark
