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
    const X11Server* server = _connection.server();
    return server && (_lastInput || !server->hasScreenSaver);
}

void X11Input::take(const xcb_generic_event_t& event) {
    const X11Server& server = *_connection.server();
    const int type = event.response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == server.clockWindow) {
            _stamp = _clock.read(change.time);
        }
        return;
    }
    const auto& raw = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event);
    if (type != XCB_GE_GENERIC || raw.extension != server.inputOpcode) {
        return;
    }
    const X11Time time = _clock.read(raw.time);
    if (raw.event_type == XCB_INPUT_RAW_KEY_PRESS) {
        _happenings.push_back({time, &_lastKeyDown});
    } else if (raw.event_type == XCB_INPUT_RAW_BUTTON_PRESS ||
               raw.event_type == XCB_INPUT_RAW_BUTTON_RELEASE) {
        takeButton(raw.detail, time, raw.event_type == XCB_INPUT_RAW_BUTTON_PRESS);
    }
}

void X11Input::takeButton(std::uint32_t number, X11Time time, bool isDown) {
    Button* button = number == leftButton ? &_left : number == rightButton ? &_right : nullptr;
    if (button) {
        button->isHeld = isDown;
    }
    _happenings.push_back({time, button && isDown ? &button->lastDown : nullptr});
}

void X11Input::ask() {
    const bool hasIdleTime = _connection.server()->hasScreenSaver;
    const double now = _connection.uptime();
    const bool isActive = !_lastInput || now - *_lastInput < freshIdle;
    const bool isOld = !_idleAsked || now - *_idleAsked >= idleInterval;
    if (!_happenings.empty() || (hasIdleTime && (isActive || isOld))) {
        askTime();
        _idleAsked = now;
    }
    if (_left.isHeld || _right.isHeld) {
        askButtons();
    }
}

/// The change of a property comes back with the server's time, just before the answer about that moment.
void X11Input::askTime() {
    const X11Server& server = *_connection.server();
    _stamp.reset();
    xcb_change_property(server.get(), XCB_PROP_MODE_REPLACE, server.clockWindow, server.atom(X11Atom::clock),
                        XCB_ATOM_INTEGER, 32, 0, nullptr);
    const bool hasIdleTime = server.hasScreenSaver;
    const unsigned sequence = hasIdleTime ? xcb_screensaver_query_info(server.get(), server.root).sequence
                                          : xcb_get_input_focus(server.get()).sequence;
    _connection.ask(sequence, [this, hasIdleTime, askedAt = _connection.uptime()](const void* reply) {
        _connection.takeEvents();
        takeStamp(askedAt);
        if (reply && hasIdleTime && _stamp) {
            noteInput(*_stamp -
                      static_cast<const xcb_screensaver_query_info_reply_t*>(reply)->ms_since_user_input);
        }
    });
}

/// A stamp that comes in a later round says nothing of how the clocks stand now.
void X11Input::takeStamp(double askedAt) {
    const bool isPrompt = askedAt == _connection.uptime();
    if (_stamp && (isPrompt || !_clock.isPaired())) {
        _clock.pair(*_stamp, _connection.uptime());
    }
}

void X11Input::askButtons() {
    const X11Server& server = *_connection.server();
    const auto cookie = xcb_query_pointer(server.get(), server.root);
    _connection.ask(cookie.sequence, [this](const void* reply) {
        if (reply) {
            const int mask = static_cast<const xcb_query_pointer_reply_t*>(reply)->mask;
            _left.isHeld = (mask & XCB_KEY_BUT_MASK_BUTTON_1) != 0;
            _right.isHeld = (mask & XCB_KEY_BUT_MASK_BUTTON_3) != 0;
        }
    });
}

double X11Input::uptimeOf(X11Time time) const {
    const double now = _connection.uptime();
    return std::min(now, _clock.uptime(time).value_or(now));
}

/// What is known already keeps the time that it was given: the clocks may have drifted apart since.
void X11Input::noteInput(X11Time time) {
    if (!_lastInputTime || time > *_lastInputTime + clockStep) {
        _lastInputTime = time;
        _lastInput = uptimeOf(time);
    }
}

void X11Input::conclude() {
    for (const Happening& happening : _happenings) {
        noteInput(happening.time);
        if (happening.place) {
            *happening.place = uptimeOf(happening.time);
        }
    }
    _happenings.clear();
}

std::optional<double> X11Input::lastInput() const {
    const X11Server* server = _connection.server();
    return server && server->hasScreenSaver ? _lastInput : std::nullopt;
}

} // namespace quietlark
