#include "Quietlark/Surfaces/Nudges/NudgeVeil.h"

#include "Quietlark/Theme/AppearanceScope.h"

#include <QPainter>
#include <QWidget>

namespace quietlark {

namespace {

constexpr wumble::Motion::Curve dimming{.duration = 0.45, .x1 = 0.3, .y1 = 0, .x2 = 0.2, .y2 = 1};
constexpr double dimmingDelay = 0.08; ///< seconds: the card is seen first

class VeilView final : public QWidget {
public:
    explicit VeilView(const QProperty<Appearance>& appearance)
        : appearanceChanged_(
              observe(appearance, [this, &appearance] { setAppearance(*this, appearance.value()); })) {
        setAttribute(Qt::WA_TranslucentBackground);
        setAppearance(*this, appearance.value());
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(rect(), nudgeDim(appearanceOf(*this)));
    }

private:
    QPropertyNotifier appearanceChanged_;
};

} // namespace

QColor nudgeDim(const Appearance& appearance) {
    constexpr double onLight = 0.3;
    constexpr double onDark = 0.46;
    QColor dim(0x14, 0x14, 0x18);
    dim.setAlphaF(static_cast<float>(appearance.dark ? onDark : onLight));
    return dim;
}

std::unique_ptr<FadingSurface> makeVeil(const SurfaceContext& context, const Screen& screen,
                                        std::unique_ptr<FadingSurface> old) {
    if (!context.host.blends()) {
        return nullptr;
    }
    if (old) {
        old->surface().setFrame(screen.frame);
        old->setOpacity(1);
        return old;
    }
    const SurfaceStyle style{.identifier = "nudge-veil", .takesPointer = false};
    auto veil = std::make_unique<FadingSurface>(
        context.host.host(std::make_unique<VeilView>(context.appearance), style), context.loop);
    veil->surface().setFrame(screen.frame);
    veil->setOpacity(0);
    veil->fadeTo(1, dimming, dimmingDelay);
    return veil;
}

} // namespace quietlark
