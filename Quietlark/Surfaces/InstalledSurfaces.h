#pragma once

#include "Quietlark/Platform/DesktopLook.h"
#include "Quietlark/Surfaces/SurfaceContext.h"

#include <QProperty>

#include <memory>

namespace quietlark {

/// What the surfaces of the running program stand on; all of it outlives them.
struct SurfaceServices {
    AppModel& model;
    MainLoop& loop;
    SurfaceHost& host;
    WindowSystem& windows;
    ScreenLock* screenLock = nullptr;         ///< may be missing
    Accessibility* accessibility = nullptr;   ///< may be missing
    DesktopLookSource* desktopLook = nullptr; ///< may be missing
};

/// How things are to look: as the desktop has it, light or dark by the person's own choice where there is one.
Appearance appearanceFor(const DesktopLook& look, wumble::Appearance choice);

/// Everything that the person sees, made once and handed to the model.
class InstalledSurfaces {
public:
    explicit InstalledSurfaces(const SurfaceServices& services);
    ~InstalledSurfaces();
    InstalledSurfaces(const InstalledSurfaces&) = delete;
    InstalledSurfaces& operator=(const InstalledSurfaces&) = delete;

    const QProperty<Appearance>& appearance() const { return appearance_; }

private:
    struct Controllers;

    void refreshAppearance();

    AppModel& model_;
    DesktopLookSource* desktopLook_;
    QProperty<Appearance> appearance_;
    QPropertyNotifier settingsFollowed_;
    std::unique_ptr<Controllers> controllers_;
};

} // namespace quietlark
