#pragma once

#include "Quietlark/Platform/SurfaceHost.h"
#include "Quietlark/Surfaces/FrameTicker.h"
#include "WumbleCore/Motion/MotionTokens.h"

#include <memory>

namespace quietlark {

/// A surface whose opacity comes and goes by a curve. Destroyed, it is gone at once.
class FadingSurface {
public:
    /// `loop` outlives it.
    FadingSurface(std::unique_ptr<HostedSurface> surface, const MainLoop& loop);

    HostedSurface& surface() { return *surface_; }
    const HostedSurface& surface() const { return *surface_; }

    double opacity() const { return opacity_; }

    /// There, or not, at once; a fade that runs is over.
    void setOpacity(double opacity);

    /// From what it is now to that opacity, after a delay of so many seconds. Takes the place of a fade that runs.
    void fadeTo(double opacity, const wumble::Motion::Curve& curve = wumble::Motion::fade, double delay = 0);

private:
    void apply();

    struct Fade {
        double from = 0;
        double to = 0;
        double begins = 0; ///< uptime
        wumble::Motion::Curve curve;
    };

    std::unique_ptr<HostedSurface> surface_;
    const MainLoop& loop_;
    Fade fade_;
    double opacity_ = 1;
    FrameTicker frames_;
};

} // namespace quietlark
