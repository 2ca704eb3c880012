#include "Quietlark/Platform/Linux/Hosting/X11Stacking.h"

#include <algorithm>
#include <utility>

namespace quietlark {

namespace {

constexpr std::uint8_t depthWithAlpha = 32;

template <class Event> const Event& as(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);
}

} // namespace

X11Stacking::X11Stacking(X11Wire& wire, std::function<void()> changed)
    : wire_(wire), changed_(std::move(changed)) {
    wire_.read([this](const xcb_generic_event_t& event) { take(event); });
}

void X11Stacking::follow(bool wanted) {
    if (wanted == isFollowed_) {
        return;
    }
    isFollowed_ = wanted;
    hasTree_ = false;
    isKnown_ = false;
    unanswered_ = 0;
    ++round_;
    windows_.clear();
    wire_.selectOnRoot(XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY, wanted);
    if (wanted) {
        askTree();
    }
}

void X11Stacking::askCounted(unsigned sequence, X11Wire::Answer answer) {
    ++unanswered_;
    wire_.ask(sequence, [this, round = round_, answer = std::move(answer)](const void* reply) {
        if (round != round_) {
            return;
        }
        --unanswered_;
        answer(reply);
        isKnown_ = isKnown_ || (hasTree_ && unanswered_ == 0);
        if (isKnown_) {
            changed_();
        }
    });
}

void X11Stacking::askTree() {
    askCounted(xcb_query_tree(wire_.get(), wire_.root()).sequence, [this](const void* reply) {
        const auto* tree = static_cast<const xcb_query_tree_reply_t*>(reply);
        if (!tree) {
            return;
        }
        hasTree_ = true;
        const xcb_window_t* children = xcb_query_tree_children(tree);
        for (int place = 0; place < xcb_query_tree_children_length(tree); ++place) {
            windows_.push_back({.id = children[place], .frame = {}});
            askNature(children[place]);
        }
    });
}

/// What events leave out, or came too early to tell.
void X11Stacking::askNature(xcb_window_t window) {
    askCounted(xcb_get_window_attributes(wire_.get(), window).sequence, [this, window](const void* reply) {
        X11Neighbour* known = find(window);
        if (known && reply) {
            const auto& attributes = *static_cast<const xcb_get_window_attributes_reply_t*>(reply);
            known->isMapped = attributes.map_state != XCB_MAP_STATE_UNMAPPED;
            known->passesManager = attributes.override_redirect != 0;
            known->isDrawn = attributes._class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
        }
    });
    askCounted(xcb_get_geometry(wire_.get(), window).sequence, [this, window](const void* reply) {
        X11Neighbour* known = find(window);
        if (known && reply) {
            const auto& geometry = *static_cast<const xcb_get_geometry_reply_t*>(reply);
            const int borders = 2 * geometry.border_width;
            known->frame = {geometry.x, geometry.y, geometry.width + borders, geometry.height + borders};
            known->hasAlpha = geometry.depth == depthWithAlpha;
        }
    });
}

void X11Stacking::take(const xcb_generic_event_t& event) {
    if (!hasTree_) {
        return;
    }
    switch (event.response_type & 0x7f) {
    case XCB_CREATE_NOTIFY: takeCreated(as<xcb_create_notify_event_t>(event)); break;
    case XCB_DESTROY_NOTIFY: remove(as<xcb_destroy_notify_event_t>(event).window); break;
    case XCB_MAP_NOTIFY: setMapped(as<xcb_map_notify_event_t>(event).window, true); break;
    case XCB_UNMAP_NOTIFY: setMapped(as<xcb_unmap_notify_event_t>(event).window, false); break;
    case XCB_REPARENT_NOTIFY: takeReparented(as<xcb_reparent_notify_event_t>(event)); break;
    case XCB_CONFIGURE_NOTIFY: takeMoved(as<xcb_configure_notify_event_t>(event)); break;
    default: return;
    }
    if (isKnown_) {
        changed_();
    }
}

void X11Stacking::takeCreated(const xcb_create_notify_event_t& event) {
    if (event.parent == wire_.root()) {
        windows_.push_back({.id = event.window, .frame = {}});
        askNature(event.window);
    }
}

void X11Stacking::takeReparented(const xcb_reparent_notify_event_t& event) {
    remove(event.window);
    if (event.parent == wire_.root()) {
        windows_.push_back({.id = event.window, .frame = {}});
        askNature(event.window);
    }
}

void X11Stacking::takeMoved(const xcb_configure_notify_event_t& event) {
    X11Neighbour* known = find(event.window);
    if (!known) {
        return;
    }
    const int borders = 2 * event.border_width;
    X11Neighbour moved = *known;
    moved.frame = {event.x, event.y, event.width + borders, event.height + borders};
    moved.passesManager = event.override_redirect != 0;
    remove(event.window);
    putAbove(moved, event.above_sibling);
}

void X11Stacking::setMapped(xcb_window_t window, bool isMapped) {
    if (X11Neighbour* known = find(window)) {
        known->isMapped = isMapped;
    }
}

void X11Stacking::remove(xcb_window_t window) {
    std::erase_if(windows_, [window](const X11Neighbour& each) { return each.id == window; });
}

/// At the bottom where nothing lies below it.
void X11Stacking::putAbove(const X11Neighbour& neighbour, xcb_window_t below) {
    const auto found = std::ranges::find(windows_, below, &X11Neighbour::id);
    windows_.insert(found == windows_.end() ? windows_.begin() : std::next(found), neighbour);
}

X11Neighbour* X11Stacking::find(xcb_window_t window) {
    const auto found = std::ranges::find(windows_, window, &X11Neighbour::id);
    return found == windows_.end() ? nullptr : &*found;
}

} // namespace quietlark
