#pragma once

#include "Quietlark/Theme/Appearance.h"
#include "WumbleCore/Engine/SettingsChoices.h"

#include <QImage>
#include <QPixmap>
#include <optional>

class QPainter;

namespace quietlark {

/// What lies behind everything on the break screen. Drawn once for a size, then only copied.
class BreakGround {
public:
    struct Look {
        wumble::BreakScreenStyle style = wumble::BreakScreenStyle::gradient;
        Appearance appearance;
        bool blends = true; ///< whether the desktop shows through what isn't opaque

        bool operator==(const Look&) const = default;
    };

    /// `backdrop`: a small picture of what the screen showed; absent where there is none.
    explicit BreakGround(std::optional<QImage> backdrop) : backdrop_(std::move(backdrop)) {}

    /// Whether a backdrop would be seen; taking one costs as much as several frames.
    static bool needsBackdrop(const Look& look);

    void setLook(const Look& look);

    /// The part of it in `exposed`, at that opacity. Where the desktop can't blend, the backdrop shows through instead,
    /// and without one nothing does.
    void draw(QPainter& painter, const QSize& size, const QRect& exposed, double opacity);

private:
    void prepare(const QSize& size, double pixelsPerPoint);
    void drawWhole(QPainter& painter, const QRectF& whole) const;
    bool showsBackdrop() const;

    std::optional<QImage> backdrop_;
    Look look_;
    QPixmap whole_;
    QPixmap behind_; ///< the backdrop alone, where it has to stand in for the desktop
};

} // namespace quietlark
