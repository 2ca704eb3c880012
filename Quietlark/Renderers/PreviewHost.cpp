#include "Quietlark/Renderers/PreviewHost.h"

#include "Quietlark/Theme/Role.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace quietlark {

namespace {

constexpr double panelHeight = 30;
constexpr double around = 24; ///< points of desk that a picture of one surface shows on each side
constexpr int backdropWidth = 160;

} // namespace

class PreviewHost::Placed final : public HostedSurface {
public:
    Placed(std::unique_ptr<QWidget> view, SurfaceStyle style, std::shared_ptr<Surfaces> surfaces)
        : view_(std::move(view)), style_(std::move(style)), surfaces_(std::move(surfaces)) {
        view_->setAttribute(Qt::WA_DontShowOnScreen);
        surfaces_->push_back(this);
    }
    ~Placed() override { std::erase(*surfaces_, this); }
    Placed(const Placed&) = delete;
    Placed& operator=(const Placed&) = delete;

    const SurfaceStyle& style() const { return style_; }

    void draw(QPainter& painter, double scale) {
        // Drawn in pixels first: what fades and moves in the view then keeps to its scale.
        QImage image((frame_.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::transparent);
        view_->render(&image, {}, {}, QWidget::DrawChildren);
        painter.setOpacity(opacity_);
        painter.drawImage(frame_.topLeft(), image);
        painter.setOpacity(1);
    }

    QWidget& view() override { return *view_; }
    QRectF frame() const override { return frame_; }
    void setFrame(const QRectF& frame) override {
        frame_ = frame;
        view_->resize(frame.size().toSize());
    }
    bool isMapped() const override { return mapped_; }
    void setMapped(bool mapped) override {
        mapped_ = mapped;
        view_->setVisible(mapped);
        if (mapped) {
            bringToTop();
        }
    }
    bool isShowing() const override { return mapped_; }
    void bringToFront() override { setMapped(true); }
    void setOpacity(double opacity) override { opacity_ = opacity; }
    bool takesPointer() const override { return style_.takesPointer; }
    void setTakesPointer(bool takes) override { style_.takesPointer = takes; }
    void setOutline(const QRegion&) override {}

private:
    /// A break screen stays above all notes.
    void bringToTop() {
        std::erase(*surfaces_, this);
        const auto above = std::ranges::find_if(
            *surfaces_, [this](const Placed* other) { return other->style().layer > style_.layer; });
        surfaces_->insert(above, this);
    }

    std::unique_ptr<QWidget> view_;
    SurfaceStyle style_;
    std::shared_ptr<Surfaces> surfaces_;
    QRectF frame_;
    bool mapped_ = false;
    double opacity_ = 1;
};

PreviewHost::PreviewHost(QSizeF size)
    : screen_{.name = "Preview",
              .frame = {{}, size},
              .visibleFrame = QRectF({}, size).adjusted(0, panelHeight, 0, 0)},
      pointer_(screen_.frame.center()), surfaces_(std::make_shared<Surfaces>()) {}

PreviewHost::~PreviewHost() = default;

SurfaceHost::Subscription PreviewHost::observeScreens(std::function<void()>) { return nullptr; }
SurfaceHost::Subscription PreviewHost::observeOutside(std::function<void()>) { return nullptr; }

std::optional<QImage> PreviewHost::backdrop(const Screen& screen) const {
    QImage image(screen.frame.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawDesk(painter, screen.frame.size(), {});
    painter.end();
    return image.scaledToWidth(backdropWidth, Qt::SmoothTransformation);
}

std::unique_ptr<HostedSurface> PreviewHost::host(std::unique_ptr<QWidget> view, const SurfaceStyle& style) {
    return std::make_unique<Placed>(std::move(view), style, surfaces_);
}

QImage PreviewHost::picture(const Appearance& appearance, double scale) {
    QImage image((screen_.frame.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    drawDesk(painter, screen_.frame.size(), appearance);
    for (Placed* surface : *surfaces_) {
        if (surface->isMapped()) {
            surface->draw(painter, scale);
        }
    }
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

QImage PreviewHost::pictureOf(std::string_view identifier, const Appearance& appearance, double scale) {
    const auto isIt = [&](const Placed* surface) {
        return surface->isMapped() && surface->style().identifier == identifier;
    };
    const auto found = std::find_if(surfaces_->rbegin(), surfaces_->rend(), isIt);
    if (found == surfaces_->rend()) {
        return {};
    }
    return picture((*found)->frame().adjusted(-around, -around, around, around) & screen_.frame, appearance,
                   scale);
}

QImage PreviewHost::picture(const QRectF& part, const Appearance& appearance, double scale) {
    return picture(appearance, scale).copy(QRectF(part.topLeft() * scale, part.size() * scale).toRect());
}

} // namespace quietlark
