#pragma once

#include "Quietlark/Platform/DesktopLook.h"
#include "Quietlark/Platform/TrayItem.h"
#include "Quietlark/Surfaces/SurfaceContext.h"
#include "Quietlark/Surfaces/Tray/TrayActions.h"

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
    TrayItem* tray = nullptr;                 ///< may be missing
    TrayDoors doors = {};
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

    /// Has everything ready for the moment at which it is wanted.
    void prepare();

    /// For the person who starts the program again, and may have no panel.
    void openPopover();

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
