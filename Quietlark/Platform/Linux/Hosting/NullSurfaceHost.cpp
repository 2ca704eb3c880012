#include "Quietlark/Platform/Linux/Hosting/NullSurfaceHost.h"

#include <QWidget>

#include <utility>

namespace quietlark {

namespace {

class UnseenSurface final : public HostedSurface {
public:
    UnseenSurface(std::unique_ptr<QWidget> view, bool takesPointer)
        : view_(std::move(view)), takesPointer_(takesPointer) {}

    QWidget& view() override { return *view_; }
    QRectF frame() const override { return frame_; }
    void setFrame(const QRectF& frame) override {
        frame_ = frame;
        view_->resize(frame.size().toSize());
    }
    bool isMapped() const override { return false; }
    void setMapped(bool) override {}
    bool isShowing() const override { return false; }
    void bringToFront() override {}
    void setOpacity(double) override {}
    bool takesPointer() const override { return takesPointer_; }
    void setTakesPointer(bool takes) override { takesPointer_ = takes; }
    void setOutline(const QRegion&) override {}

private:
    std::unique_ptr<QWidget> view_;
    QRectF frame_;
    bool takesPointer_;
};

} // namespace

SurfaceHost::Subscription NullSurfaceHost::observeScreens(std::function<void()>) {
    return std::make_shared<bool>();
}

SurfaceHost::Subscription NullSurfaceHost::observeOutside(std::function<void()>) {
    return std::make_shared<bool>();
}

std::optional<QImage> NullSurfaceHost::backdrop(const Screen&) const { return {}; }

std::unique_ptr<HostedSurface> NullSurfaceHost::host(std::unique_ptr<QWidget> view,
                                                     const SurfaceStyle& style) {
    return std::make_unique<UnseenSurface>(std::move(view), style.takesPointer);
}

} // namespace quietlark
