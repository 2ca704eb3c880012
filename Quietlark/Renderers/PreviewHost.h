#pragma once

#include "Quietlark/Platform/SurfaceHost.h"
#include "Quietlark/Theme/Appearance.h"

#include <QImage>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace quietlark {

/// Hosts views on a screen that is only ever a picture.
class PreviewHost final : public SurfaceHost {
public:
    /// One screen of that size in points, with a panel at its top.
    explicit PreviewHost(QSizeF size);
    ~PreviewHost() override;

    const Screen& screen() const { return screen_; }
    void setPointer(const QPointF& place) { pointer_ = place; }

    /// What the person would see, at `scale` pixels a point: a desk with a document on it and all surfaces above.
    QImage picture(const Appearance& appearance, double scale);

    /// That part of it, in points of the screen.
    QImage picture(const QRectF& part, const Appearance& appearance, double scale);

    /// The part of it around the topmost surface with that identifier; a null image when none is mapped.
    QImage pictureOf(std::string_view identifier, const Appearance& appearance, double scale);

    std::vector<Screen> screens() const override { return {screen_}; }
    Subscription observeScreens(std::function<void()> changed) override;
    std::optional<QPointF> pointer() const override { return pointer_; }
    Subscription observeOutside(std::function<void()> pressedOrLeft) override;
    bool blends() const override { return true; }
    std::optional<QImage> backdrop(const Screen& screen) const override;
    std::unique_ptr<HostedSurface> host(std::unique_ptr<QWidget> view, const SurfaceStyle& style) override;

private:
    class Placed;
    using Surfaces = std::vector<Placed*>;

    Screen screen_;
    QPointF pointer_;
    std::shared_ptr<Surfaces> surfaces_; ///< from the bottom to the top
};

/// A desk with a document on it, as it may lie behind what the program shows.
void drawDesk(QPainter& painter, const QSizeF& size, const Appearance& appearance);

} // namespace quietlark
