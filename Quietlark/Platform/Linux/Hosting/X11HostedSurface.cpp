#include "Quietlark/Platform/Linux/Hosting/X11HostedSurface.h"

#include <QGuiApplication>
#include <QResizeEvent>
#include <QScreen>
#include <QWindow>

#include <utility>

#include <xcb/shape.h>

namespace quietlark {

class X11HostedSurface::Window final : public QWidget {
public:
    Window(QWidget& view, const SurfaceStyle& style)
        : QWidget(nullptr,
                  Qt::Window | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint |
                      (style.keyboard == Keyboard::none ? Qt::WindowDoesNotAcceptFocus : Qt::WindowFlags())) {
        const QString identifier = QString::fromStdString(style.identifier);
        setObjectName(identifier);
        setWindowTitle(identifier);
        setWindowRole(identifier);
        setAttribute(Qt::WA_TranslucentBackground);
        setAttribute(Qt::WA_X11NetWmWindowTypeNotification);
        setAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_QuitOnClose, false);
        view.setParent(this);
        view.show();
        view_ = &view;
    }

protected:
    void resizeEvent(QResizeEvent* event) override { view_->setGeometry(QRect({0, 0}, event->size())); }

private:
    QWidget* view_;
};

X11HostedSurface::X11HostedSurface(X11Desk& desk, std::unique_ptr<QWidget> view, const SurfaceStyle& style)
    : desk_(desk), style_(style), window_(std::make_unique<Window>(*view, style)), view_(view.release()),
      takesPointer_(style.takesPointer) {}

X11HostedSurface::~X11HostedSurface() = default;

xcb_window_t X11HostedSurface::id() const { return static_cast<xcb_window_t>(window_->internalWinId()); }

void X11HostedSurface::setFrame(const QRectF& frame) {
    frame_ = frame;
    const QRect place = frame.toRect();
    if (QScreen* screen = QGuiApplication::screenAt(place.center())) {
        window_->setScreen(screen);
    }
    window_->setGeometry(place);
}

void X11HostedSurface::makeWindow() {
    if (id() == XCB_NONE) {
        window_->winId();
        shapeInput();
    }
}

void X11HostedSurface::setMapped(bool mapped) {
    if (mapped == isMapped_) {
        return;
    }
    isMapped_ = mapped;
    if (!mapped) {
        window_->hide();
        return;
    }
    makeWindow();
    window_->show();
    if (style_.keyboard == Keyboard::whole && !window_->focusWidget()) {
        view_->setFocus();
    }
    bringToFront();
}

bool X11HostedSurface::isShowing() const { return isMapped_; }

void X11HostedSurface::bringToFront() {
    setMapped(true);
    window_->raise();
}

void X11HostedSurface::setOpacity(double opacity) { window_->setWindowOpacity(opacity); }

void X11HostedSurface::setTakesPointer(bool takes) {
    takesPointer_ = takes;
    if (id() != XCB_NONE) {
        shapeInput();
    }
}

void X11HostedSurface::shapeInput() {
    if (!desk_.canShape) {
        return;
    }
    if (takesPointer_) {
        xcb_shape_mask(desk_.connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, id(), 0, 0, XCB_NONE);
    } else {
        xcb_shape_rectangles(desk_.connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT,
                             XCB_CLIP_ORDERING_UNSORTED, id(), 0, 0, 0, nullptr);
    }
    xcb_flush(desk_.connection);
}

void X11HostedSurface::setOutline(const QRegion&) {}

} // namespace quietlark
