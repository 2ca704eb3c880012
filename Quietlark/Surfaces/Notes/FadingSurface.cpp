#include "Quietlark/Surfaces/Notes/FadingSurface.h"

#include <utility>

namespace quietlark {

FadingSurface::FadingSurface(std::unique_ptr<HostedSurface> surface, const MainLoop& loop)
    : surface_(std::move(surface)), loop_(loop), frames_(loop, [this](double) { apply(); }) {}

void FadingSurface::setOpacity(double opacity) {
    frames_.stop();
    opacity_ = opacity;
    surface_->setOpacity(opacity);
}

void FadingSurface::fadeTo(double opacity, const wumble::Motion::Curve& curve, double delay) {
    fade_ = {.from = opacity_, .to = opacity, .begins = loop_.uptime() + delay, .curve = curve};
    frames_.start();
}

void FadingSurface::apply() {
    const double t = loop_.uptime() - fade_.begins;
    opacity_ = fade_.from + (fade_.to - fade_.from) * fade_.curve.value(t);
    surface_->setOpacity(opacity_);
    if (t >= fade_.curve.duration) {
        frames_.stop();
    }
}

} // namespace quietlark
