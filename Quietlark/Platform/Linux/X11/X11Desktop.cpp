#include "Quietlark/Platform/Linux/X11/X11Desktop.h"

#include "Quietlark/Platform/Linux/X11/X11Rectangles.h"

#include <chrono>

namespace quietlark {

namespace {

constexpr std::chrono::microseconds patience{2000};

/// Says in a request to a window manager that the person asked for it, by a program that handles windows.
constexpr std::uint32_t byThePerson = 2;

void askToActivate(const X11Server& server, xcb_window_t window, std::uint32_t time) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = server.atom(X11Atom::activeWindow);
    message.data.data32[0] = byThePerson;
    message.data.data32[1] = time;
    xcb_send_event(server.get(), 0, server.root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
}

/// A window that is gone makes the server refuse both, which is no harm.
void bringToFront(const X11Server& server, xcb_window_t window, std::uint32_t time) {
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(server.get(), window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    xcb_set_input_focus(server.get(), XCB_INPUT_FOCUS_PARENT, window, time);
}

} // namespace

X11Desktop::X11Desktop(const std::string& display)
    : connection_(display, [this](const xcb_generic_event_t& event) { take(event); }),
      parts_(std::make_unique<Parts>(connection_)) {}

void X11Desktop::take(const xcb_generic_event_t& event) {
    parts_->input.take(event);
    parts_->windows.take(event);
    parts_->displays.take(event);
}

void X11Desktop::ask() {
    parts_->input.ask();
    parts_->windows.ask();
    parts_->displays.ask();
    parts_->power.ask();
}

void X11Desktop::refresh(double uptime) {
    if (refreshedAt_ == uptime) {
        return;
    }
    refreshedAt_ = uptime;
    if (connection_.renew(uptime)) {
        parts_ = std::make_unique<Parts>(connection_);
        measured_.reset();
    }
    if (!connection_.server()) {
        return;
    }
    connection_.takeEvents();
    if (!connection_.isWaiting()) {
        ask();
    }
    connection_.settle(patience);
    parts_->input.conclude();
    parts_->windows.conclude();
}

bool X11Desktop::ready() const {
    if (!connection_.server()) {
        return connection_.hasTried();
    }
    return parts_->input.hasAnswered() && parts_->windows.hasAnswered() && parts_->displays.hasAnswered();
}

std::vector<wumble::GameDetection::Display> X11Desktop::displays() const {
    return parts_->displays.displays(parts_->windows.topStruts());
}

bool X11Desktop::Program::owns(const AppWindow& window) const {
    return pid != 0 ? window.pid == pid : !windowClass.empty() && window.windowClass == windowClass;
}

std::vector<xcb_window_t> X11Desktop::windowsOf(const Program& program) const {
    std::vector<xcb_window_t> found;
    for (const AppWindow& window : parts_->windows.stacking()) {
        if (program.owns(window)) {
            found.push_back(static_cast<xcb_window_t>(window.id));
        }
    }
    return found;
}

std::vector<wumble::Rect> X11Desktop::rectanglesOfProgram(const AppWindow& window) {
    Program program{window.pid, window.windowClass, {}};
    if (connection_.server() && !connection_.isWaiting()) {
        const X11Rectangles question(connection_, windowsOf(program), parts_->windows.currentDesktop());
        connection_.settle(patience);
        if (auto rectangles = question.answer()) {
            program.rectangles = std::move(*rectangles);
            measured_ = program;
        }
    }
    return measured_ && measured_->owns(window) ? measured_->rectangles : std::vector<wumble::Rect>{};
}

void X11Desktop::activate(const AppWindow& window) {
    const X11Server* server = connection_.server();
    if (!server || window.id == XCB_NONE) {
        return;
    }
    const auto id = static_cast<xcb_window_t>(window.id);
    const auto send = parts_->windows.canActivate() ? askToActivate : bringToFront;
    send(*server, id, parts_->input.serverTime());
    connection_.flush();
}

} // namespace quietlark
