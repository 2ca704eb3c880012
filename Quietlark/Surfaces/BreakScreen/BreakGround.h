#pragma once

#include "Quietlark/Theme/Appearance.h"
#include "WumbleCore/Engine/SettingsChoices.h"

#include <QImage>
#include <QPixmap>
#include <functional>
#include <optional>

class QPainter;

namespace quietlark {

/// What lies behind everything on the break screen. Drawn once for a size, then only copied. As long as nothing of it
/// can be seen it is drawn bit by bit, so that no frame has to wait for all of a large screen.
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

    void setLook(const Look& look);

    /// Whether a backdrop would ever be seen.
    static bool wantsBackdrop(const Look& look);

    /// The part of it in `exposed`, at that opacity. Where the desktop can't blend, the backdrop shows through instead,
    /// and without one nothing does.
    void draw(QPainter& painter, const QSize& size, const QRect& exposed, double opacity);

private:
    using Drawing = std::function<void(QPainter&)>;

    /// As many pixels as the place has, to be copied one to one.
    class Canvas {
    public:
        /// Draws up to so many of the rows of pixels that are still missing.
        void paint(const QSize& pixels, double pixelsPerPoint, int rows, const Drawing& draw);
        const QPixmap& pixmap() const { return pixmap_; }

    private:
        QPixmap pixmap_;
        int done_ = 0;
    };

    void prepare(const QSize& size, double pixelsPerPoint, int rows);
    void drawVeiled(QPainter& painter, const QRectF& whole) const;
    void copy(QPainter& painter, const QRect& pixels) const;
    bool isVeil() const;

    std::optional<QImage> backdrop_;
    Look look_;
    Canvas paper_;  ///< one row of its patches
    Canvas veiled_; ///< the backdrop under its veil
    Canvas behind_; ///< the backdrop alone, where it has to stand in for the desktop
};

} // namespace quietlark
