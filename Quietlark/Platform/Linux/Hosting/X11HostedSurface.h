#pragma once

#include "Quietlark/Platform/Linux/Hosting/X11Desk.h"
#include "Quietlark/Platform/SurfaceHost.h"

#include <QWidget>

#include <memory>
#include <optional>

#include <xcb/shape.h>

namespace quietlark {

/// A window that no window manager knows of.
class X11HostedSurface final : public HostedSurface {
public:
    /// `desk` outlives this.
    X11HostedSurface(X11Desk& desk, std::unique_ptr<QWidget> view, const SurfaceStyle& style);
    ~X11HostedSurface() override;
    X11HostedSurface(const X11HostedSurface&) = delete;
    X11HostedSurface& operator=(const X11HostedSurface&) = delete;

    QWidget& view() override { return *view_; }
    QRectF frame() const override { return frame_; }
    void setFrame(const QRectF& frame) override;
    bool isMapped() const override { return isMapped_; }
    void setMapped(bool mapped) override;
    bool isShowing() const override;
    void bringToFront() override;
    void setOpacity(double opacity) override;
    bool takesPointer() const override { return takesPointer_; }
    void setTakesPointer(bool takes) override;
    void releaseKeyboard() override { desk_.keyboard.giveBack(id()); }
    void setOutline(const QRegion& outline) override;

private:
    class Window;

    xcb_window_t id() const;
    bool isMade() const { return id() != XCB_NONE; }
    void moveToPixel();
    void make();
    void mark();
    void map();
    void unmap();
    void shapeInput();
    void showOpacity();
    void shape(xcb_shape_kind_t kind, const std::optional<QRegion>& region);

    X11Desk& desk_;
    SurfaceStyle style_;
    std::unique_ptr<Window> window_;
    QWidget* view_; ///< the window's
    QRectF frame_;
    bool isMapped_ = false;
    bool takesPointer_;
    double opacity_ = 1;
    std::optional<QRegion> outline_; ///< absent: all of it
    std::shared_ptr<void> blendingFollowed_;
};

} // namespace quietlark
