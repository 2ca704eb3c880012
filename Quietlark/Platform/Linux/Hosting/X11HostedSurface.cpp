#include "Quietlark/Platform/Linux/Hosting/X11HostedSurface.h"

#include <QGuiApplication>
#include <QResizeEvent>
#include <QScreen>
#include <QWindow>

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace quietlark {

namespace {

constexpr std::uint32_t neverBypass = 2;
constexpr double thereFrom = 0.5;

std::vector<xcb_rectangle_t> pixelsOf(const QRegion& region, double scale) {
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& each : region) {
        const QRect pixels =
            QRectF(QPointF(each.topLeft()) * scale, QSizeF(each.size()) * scale).toAlignedRect();
        rectangles.push_back({static_cast<std::int16_t>(pixels.x()), static_cast<std::int16_t>(pixels.y()),
                              static_cast<std::uint16_t>(pixels.width()),
                              static_cast<std::uint16_t>(pixels.height())});
    }
    return rectangles;
}

/// Scaled or not, the corner of a screen has the same numbers in points and in pixels.
QPoint pixelAt(QPointF point, const QScreen& screen) {
    const QPointF corner = screen.geometry().topLeft();
    return (corner + (point - corner) * screen.devicePixelRatio()).toPoint();
}

} // namespace

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
      takesPointer_(style.takesPointer),
      blendingFollowed_(desk_.compositing.observe([this] { showOpacity(); })) {}

X11HostedSurface::~X11HostedSurface() { setMapped(false); }

xcb_window_t X11HostedSurface::id() const { return static_cast<xcb_window_t>(window_->internalWinId()); }

void X11HostedSurface::setFrame(const QRectF& frame) {
    frame_ = frame;
    const QRect place = frame.toRect();
    QScreen* screen = QGuiApplication::screenAt(place.center());
    const bool onlyMoves = isMapped_ && screen == window_->screen() && place.size() == window_->size();
    if (!onlyMoves) {
        if (screen != nullptr) {
            window_->setScreen(screen);
        }
        window_->setGeometry(place);
    }
    moveToPixel();
}

/// The toolkit moves by whole points, which the eye sees as steps where a point is several pixels.
void X11HostedSurface::moveToPixel() {
    const QScreen* screen = window_->screen();
    if (!isMade() || screen == nullptr) {
        return;
    }
    const QPoint pixel = pixelAt(frame_.topLeft(), *screen);
    const std::array place{static_cast<std::uint32_t>(pixel.x()), static_cast<std::uint32_t>(pixel.y())};
    xcb_configure_window(desk_.connection, id(), XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, place.data());
    xcb_flush(desk_.connection);
}

void X11HostedSurface::make() {
    if (isMade()) {
        return;
    }
    window_->winId();
    mark();
    shapeInput();
    showOpacity();
}

/// So that others can tell what it is, and a compositor neither leaves it out nor draws a shadow of its own.
void X11HostedSurface::mark() {
    const std::string instanceAndClass = style_.identifier + '\0' + "Quietlark" + '\0';
    xcb_change_property(desk_.connection, XCB_PROP_MODE_REPLACE, id(), XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(instanceAndClass.size()), instanceAndClass.data());
    const auto setNumber = [this](xcb_atom_t property, xcb_atom_t type, std::uint32_t number) {
        xcb_change_property(desk_.connection, XCB_PROP_MODE_REPLACE, id(), property, type, 32, 1, &number);
    };
    setNumber(desk_.windowType, XCB_ATOM_ATOM, desk_.notificationType);
    setNumber(desk_.bypassCompositor, XCB_ATOM_CARDINAL, neverBypass);
    setNumber(desk_.shadow, XCB_ATOM_CARDINAL, 0);
}

void X11HostedSurface::setMapped(bool mapped) {
    if (mapped != isMapped_) {
        isMapped_ = mapped;
        mapped ? map() : unmap();
    }
}

void X11HostedSurface::map() {
    make();
    moveToPixel();
    window_->show();
    desk_.layers.add(id(), style_.layer);
    if (style_.keyboard == Keyboard::whole) {
        if (!window_->focusWidget()) {
            view_->setFocus();
        }
        desk_.keyboard.take(id());
    }
}

void X11HostedSurface::unmap() {
    desk_.layers.remove(id());
    desk_.keyboard.giveBack(id());
    window_->hide();
}

bool X11HostedSurface::isShowing() const {
    return isMapped_ && desk_.layers.isSeen(id()).value_or(window_->windowHandle()->isExposed());
}

void X11HostedSurface::bringToFront() {
    setMapped(true);
    desk_.layers.bringToFront(id());
}

void X11HostedSurface::setOpacity(double opacity) {
    opacity_ = opacity;
    if (isMade()) {
        showOpacity();
    }
}

void X11HostedSurface::setTakesPointer(bool takes) {
    takesPointer_ = takes;
    if (isMade()) {
        shapeInput();
    }
}

void X11HostedSurface::setOutline(const QRegion& outline) {
    outline_ = outline;
    if (isMade()) {
        showOpacity();
    }
}

void X11HostedSurface::shapeInput() {
    shape(XCB_SHAPE_SK_INPUT, takesPointer_ ? std::nullopt : std::optional(QRegion()));
}

/// Where nothing blends, a window has an outline and is either there or not.
void X11HostedSurface::showOpacity() {
    if (!isMade()) {
        return;
    }
    if (desk_.compositing.blends()) {
        window_->setWindowOpacity(opacity_);
        shape(XCB_SHAPE_SK_BOUNDING, {});
    } else {
        window_->setWindowOpacity(1);
        shape(XCB_SHAPE_SK_BOUNDING, opacity_ < thereFrom ? QRegion() : outline_);
    }
}

/// `region` is in points of the view; absent: all of the window.
void X11HostedSurface::shape(xcb_shape_kind_t kind, const std::optional<QRegion>& region) {
    if (!desk_.canShape) {
        return;
    }
    if (!region) {
        xcb_shape_mask(desk_.connection, XCB_SHAPE_SO_SET, kind, id(), 0, 0, XCB_NONE);
    } else {
        const auto rectangles = pixelsOf(*region, window_->devicePixelRatioF());
        xcb_shape_rectangles(desk_.connection, XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, id(), 0, 0,
                             static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
    }
    xcb_flush(desk_.connection);
}

} // namespace quietlark
