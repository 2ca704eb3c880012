#pragma once

#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Platform/SurfaceHost.h"
#include "Quietlark/Theme/Appearance.h"

#include <QProperty>

namespace quietlark {

/// What every surface stands on; all of it outlives the surfaces.
struct SurfaceContext {
    AppModel& model;
    MainLoop& loop;
    SurfaceHost& host;
    WindowSystem& windows;
    Accessibility* accessibility = nullptr;  ///< may be missing
    const QProperty<Appearance>& appearance; ///< of the desktop and the person's choice; changes live
};

} // namespace quietlark
