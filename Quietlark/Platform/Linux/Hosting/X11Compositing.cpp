#include "Quietlark/Platform/Linux/Hosting/X11Compositing.h"

#include <memory>
#include <string>

#include <xcb/xfixes.h>

namespace quietlark {

namespace {

constexpr std::uint32_t firstVersionWithSelections = 1;

template <class Reply> std::unique_ptr<Reply, X11Free> owned(Reply* reply) {
    return std::unique_ptr<Reply, X11Free>(reply);
}

} // namespace

/// A compositor owns a selection that is named after the screen.
X11Compositing::X11Compositing(X11Wire& wire)
    : wire_(wire), selection_(wire.atom("_NET_WM_CM_S" + std::to_string(wire.screen()))) {
    follow();
    const auto owner = owned(xcb_get_selection_owner_reply(
        wire_.get(), xcb_get_selection_owner(wire_.get(), selection_), nullptr));
    blends_ = owner && owner->owner != XCB_NONE;
}

void X11Compositing::follow() {
    if (!wire_.has(xcb_xfixes_id)) {
        return;
    }
    const auto version = owned(xcb_xfixes_query_version_reply(
        wire_.get(), xcb_xfixes_query_version(wire_.get(), firstVersionWithSelections, 0), nullptr));
    if (!version) {
        return;
    }
    notifyType_ = xcb_get_extension_data(wire_.get(), &xcb_xfixes_id)->first_event;
    xcb_xfixes_select_selection_input(wire_.get(), wire_.root(), selection_,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    wire_.read([this](const xcb_generic_event_t& event) { take(event); });
}

void X11Compositing::take(const xcb_generic_event_t& event) {
    if ((event.response_type & 0x7f) != notifyType_) {
        return;
    }
    const bool blends = reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(event).owner != XCB_NONE;
    if (blends != blends_) {
        blends_ = blends;
        observers_.tell();
    }
}

} // namespace quietlark
