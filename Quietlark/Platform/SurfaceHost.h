#pragma once

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QRegion>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace quietlark {

/// One of the person's screens. All places are points of the desktop, y growing downwards from the top left of the
/// first screen.
struct Screen {
    std::string name; ///< as the person knows it; may be empty
    QRectF frame;
    QRectF visibleFrame; ///< what panels and docks leave free
    double scale = 1;    ///< pixels a point
    double refreshRate = 60;

    bool operator==(const Screen&) const = default;
};

enum class SurfaceLayer {
    note,       ///< above every window, full-screen ones too
    breakScreen ///< and above all notes
};

enum class Keyboard {
    none, ///< never takes the keyboard from the program in front
    whole ///< every key of the desktop while it is mapped, but for those of a lock screen
};

struct SurfaceStyle {
    std::string identifier; ///< "heads-up"
    SurfaceLayer layer = SurfaceLayer::note;
    Keyboard keyboard = Keyboard::none;
    bool takesPointer = true;
};

/// A view on a screen. It is on every workspace, has no frame, and isn't listed among the windows. Its view knows
/// nothing of what carries it. Destroyed, it is gone from the screen at once.
class HostedSurface {
public:
    virtual ~HostedSurface() = default;

    virtual QWidget& view() = 0;

    virtual QRectF frame() const = 0;
    virtual void setFrame(const QRectF& frame) = 0;

    /// Mapped, it lies above all others of its layer and of the layers below.
    virtual bool isMapped() const = 0;
    virtual void setMapped(bool mapped) = 0;

    /// Whether the person can see it: mapped, on the workspace in front, and not wholly covered.
    virtual bool isShowing() const = 0;

    /// Puts it above whatever covers it, mapping it if need be.
    virtual void bringToFront() = 0;

    /// 0 to 1, of all of it. Where the desktop can't blend, it is there from one half on.
    virtual void setOpacity(double opacity) = 0;

    /// Whether clicks are for it or for what lies below.
    virtual bool takesPointer() const = 0;
    virtual void setTakesPointer(bool takes) = 0;

    /// Gives the keyboard back to whom it was taken from, while the surface itself stays. It doesn't take it again.
    virtual void releaseKeyboard() {}

    /// What of the view is to be seen where the desktop can't blend it with what lies behind; elsewhere nothing comes
    /// of it. All of it until this is called.
    virtual void setOutline(const QRegion& outline) = 0;
};

/// What puts views on the screens of this session.
class SurfaceHost {
public:
    using Subscription = std::shared_ptr<void>;

    virtual ~SurfaceHost() = default;

    /// The first is the main one. Empty while no screen is connected.
    virtual std::vector<Screen> screens() const = 0;

    /// Calls `changed` after each change of `screens`, for as long as the answer lives.
    [[nodiscard]] virtual Subscription observeScreens(std::function<void()> changed) = 0;

    /// Absent where this session doesn't tell.
    virtual std::optional<QPointF> pointer() const = 0;

    /// The same at this very moment, at the cost of a short wait: for a click, which may have come with the pointer.
    virtual std::optional<QPointF> pointerNow() const { return pointer(); }

    /// A press of a button anywhere outside our own surfaces, and another program coming to the front, for as long as
    /// the answer lives.
    [[nodiscard]] virtual Subscription observeOutside(std::function<void()> pressedOrLeft) = 0;

    /// Whether surfaces may be translucent.
    virtual bool blends() const = 0;

    /// A small, soft picture of what the screen shows now, to lie behind a break. Absent where the session doesn't give
    /// it.
    virtual std::optional<QImage> backdrop(const Screen& screen) const = 0;

    /// Not mapped yet. The surface owns the view.
    virtual std::unique_ptr<HostedSurface> host(std::unique_ptr<QWidget> view, const SurfaceStyle& style) = 0;

    /// Lets go of the keyboard for some seconds where a surface has the whole of it, so that a lock screen can take it.
    virtual void yieldKeyboard() {}
};

} // namespace quietlark
