#include "Quietlark/Platform/Linux/Hosting/X11Pointer.h"

#include "Quietlark/Platform/Linux/X11/X11Server.h"

#include <memory>
#include <utility>

#include <xcb/xcbext.h>

namespace quietlark {

namespace {

/// An older answer says nothing of where the pointer is now.
constexpr qint64 freshMilliseconds = 50;

} // namespace

X11Pointer::~X11Pointer() { forget(); }

void X11Pointer::forget() {
    if (const auto old = std::exchange(asked_, {})) {
        xcb_discard_reply(connection_, old->sequence);
    }
}

void X11Pointer::ask() {
    asked_ = xcb_query_pointer(connection_, root_);
    age_.start();
    xcb_flush(connection_);
}

void X11Pointer::take(xcb_query_pointer_reply_t* reply) {
    const std::unique_ptr<xcb_query_pointer_reply_t, X11Free> owned(reply);
    asked_.reset();
    last_ =
        reply && reply->same_screen != 0 ? std::optional(QPoint(reply->root_x, reply->root_y)) : std::nullopt;
}

std::optional<QPoint> X11Pointer::pixels() {
    const bool isFresh = asked_ && age_.elapsed() < freshMilliseconds;
    if (!isFresh) {
        forget();
        ask();
        take(xcb_query_pointer_reply(connection_, *asked_, nullptr));
        ask();
        return last_;
    }
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (xcb_poll_for_reply(connection_, asked_->sequence, &reply, &error) != 0) {
        const std::unique_ptr<xcb_generic_error_t, X11Free> ownedError(error);
        take(static_cast<xcb_query_pointer_reply_t*>(reply));
        ask();
    }
    return last_;
}

} // namespace quietlark
