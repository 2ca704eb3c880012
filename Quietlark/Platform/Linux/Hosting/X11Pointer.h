#pragma once

#include <QElapsedTimer>
#include <QPoint>

#include <optional>

#include <xcb/xproto.h>

namespace quietlark {

/// Where the pointer is, in pixels of the root window. Who asks for it with every frame never waits: the answer is then
/// that to the question of the frame before.
class X11Pointer {
public:
    /// `connection` outlives this.
    X11Pointer(xcb_connection_t* connection, xcb_window_t root) : connection_(connection), root_(root) {}
    ~X11Pointer();
    X11Pointer(const X11Pointer&) = delete;
    X11Pointer& operator=(const X11Pointer&) = delete;

    /// Absent while it is on another screen of the server.
    std::optional<QPoint> pixels();

    /// The next answer is that to a question asked then.
    void forget();

private:
    void ask();
    void take(xcb_query_pointer_reply_t* reply);

    xcb_connection_t* connection_;
    xcb_window_t root_;
    std::optional<xcb_query_pointer_cookie_t> asked_;
    QElapsedTimer age_; ///< of the question
    std::optional<QPoint> last_;
};

} // namespace quietlark
