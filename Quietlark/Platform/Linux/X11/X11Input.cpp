#include "Quietlark/Platform/Linux/X11/X11Input.h"

#include <algorithm>

#include <xcb/screensaver.h>
#include <xcb/xinput.h>

namespace quietlark {

namespace {

/// Up to here the idle time is asked for at each refresh, and beyond it only so often.
constexpr double freshIdle = 10;
constexpr double idleInterval = 3;

/// Idle times of the same input differ by the steps of the server's clock.
constexpr X11Time clockStep = 20;

constexpr std::uint32_t leftButton = 1;
constexpr std::uint32_t rightButton = 3;

} // namespace

bool X11Input::hasAnswered() const {
    const X11Server* server = connection_.server();
    return server != nullptr && (lastInput_ || !server->hasScreenSaver);
}

void X11Input::take(const xcb_generic_event_t& event) {
    const X11Server& server = *connection_.server();
    const int type = event.response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == server.clockWindow) {
            stamp_ = clock_.read(change.time);
        }
        return;
    }
    const auto& raw = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event);
    if (type != XCB_GE_GENERIC || raw.extension != server.inputOpcode) {
        return;
    }
    const X11Time time = clock_.read(raw.time);
    if (raw.event_type == XCB_INPUT_RAW_KEY_PRESS) {
        happenings_.push_back({time, &lastKeyDown_});
    } else if (raw.event_type == XCB_INPUT_RAW_BUTTON_PRESS ||
               raw.event_type == XCB_INPUT_RAW_BUTTON_RELEASE) {
        takeButton(raw.detail, time, raw.event_type == XCB_INPUT_RAW_BUTTON_PRESS);
    }
}

void X11Input::takeButton(std::uint32_t number, X11Time time, bool isDown) {
    Button* button = number == leftButton ? &left_ : number == rightButton ? &right_ : nullptr;
    if (button) {
        button->isHeld = isDown;
    }
    happenings_.push_back({time, button && isDown ? &button->lastDown : nullptr});
}

void X11Input::ask() {
    const bool hasIdleTime = connection_.server()->hasScreenSaver;
    const double now = connection_.uptime();
    const bool isActive = !lastInput_ || now - *lastInput_ < freshIdle;
    const bool isOld = !idleAsked_ || now - *idleAsked_ >= idleInterval;
    if (!happenings_.empty() || (hasIdleTime && (isActive || isOld))) {
        askTime();
        idleAsked_ = now;
    }
    if (left_.isHeld || right_.isHeld) {
        askButtons();
    }
}

/// The change of a property comes back with the server's time, just before the answer about that moment.
void X11Input::askTime() {
    const X11Server& server = *connection_.server();
    stamp_.reset();
    xcb_change_property(server.get(), XCB_PROP_MODE_REPLACE, server.clockWindow, server.atom(X11Atom::clock),
                        XCB_ATOM_INTEGER, 32, 0, nullptr);
    const bool hasIdleTime = server.hasScreenSaver;
    const unsigned sequence = hasIdleTime ? xcb_screensaver_query_info(server.get(), server.root).sequence
                                          : xcb_get_input_focus(server.get()).sequence;
    connection_.ask(sequence, [this, hasIdleTime, askedAt = connection_.uptime()](const void* reply) {
        connection_.takeEvents();
        takeStamp(askedAt);
        if (reply && hasIdleTime && stamp_) {
            noteInput(*stamp_ -
                      static_cast<const xcb_screensaver_query_info_reply_t*>(reply)->ms_since_user_input);
        }
    });
}

/// A stamp that comes in a later round says nothing of how the clocks stand now.
void X11Input::takeStamp(double askedAt) {
    const bool isPrompt = askedAt == connection_.uptime();
    if (stamp_ && (isPrompt || !clock_.isPaired())) {
        clock_.pair(*stamp_, connection_.uptime());
    }
}

void X11Input::askButtons() {
    const X11Server& server = *connection_.server();
    const auto cookie = xcb_query_pointer(server.get(), server.root);
    connection_.ask(cookie.sequence, [this](const void* reply) {
        if (reply) {
            const int mask = static_cast<const xcb_query_pointer_reply_t*>(reply)->mask;
            left_.isHeld = (mask & XCB_KEY_BUT_MASK_BUTTON_1) != 0;
            right_.isHeld = (mask & XCB_KEY_BUT_MASK_BUTTON_3) != 0;
        }
    });
}

double X11Input::uptimeOf(X11Time time) const {
    const double now = connection_.uptime();
    return std::min(now, clock_.uptime(time).value_or(now));
}

/// What is known already keeps the time that it was given: the clocks may have drifted apart since.
void X11Input::noteInput(X11Time time) {
    if (!lastInputTime_ || time > *lastInputTime_ + clockStep) {
        lastInputTime_ = time;
        lastInput_ = uptimeOf(time);
    }
}

void X11Input::conclude() {
    for (const Happening& happening : happenings_) {
        noteInput(happening.time);
        if (happening.place) {
            *happening.place = uptimeOf(happening.time);
        }
    }
    happenings_.clear();
}

std::optional<double> X11Input::lastInput() const {
    const X11Server* server = connection_.server();
    return server && server->hasScreenSaver ? lastInput_ : std::nullopt;
}

} // namespace quietlark
