#include "tests/desktop/hosting/Bystander.h"

#include <array>
#include <cstdlib>
#include <memory>

namespace quietlark::test {

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

template <class Reply> std::unique_ptr<Reply, Free> owned(Reply* reply) {
    return std::unique_ptr<Reply, Free>(reply);
}

} // namespace

Bystander::Bystander(const QRect& frame, Manager manager, std::uint32_t colour)
    : connection_(xcb_connect(nullptr, nullptr)),
      screen_(xcb_setup_roots_iterator(xcb_get_setup(connection_)).data),
      window_(xcb_generate_id(connection_)) {
    const std::array<std::uint32_t, 3> values{colour, manager == Manager::passed ? 1U : 0U,
                                              XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_KEY_PRESS};
    xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window_, screen_->root,
                      static_cast<std::int16_t>(frame.x()), static_cast<std::int16_t>(frame.y()),
                      static_cast<std::uint16_t>(frame.width()), static_cast<std::uint16_t>(frame.height()),
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen_->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
    // A window manager keeps to the place that was asked for by the person.
    constexpr std::uint32_t byThePerson = 1;
    setNumbers("WM_NORMAL_HINTS",
               {byThePerson, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, XCB_GRAVITY_STATIC},
               XCB_ATOM_WM_SIZE_HINTS);
}

Bystander::~Bystander() { xcb_disconnect(connection_); }

xcb_atom_t Bystander::atom(const std::string& name) const {
    const auto cookie = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
    return owned(xcb_intern_atom_reply(connection_, cookie, nullptr))->atom;
}

void Bystander::setNumbers(const std::string& property, const std::vector<std::uint32_t>& numbers,
                           xcb_atom_t type) {
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, atom(property), type, 32,
                        static_cast<std::uint32_t>(numbers.size()), numbers.data());
    xcb_flush(connection_);
}

void Bystander::askForFullScreen() {
    setNumbers("_NET_WM_STATE", {atom("_NET_WM_STATE_FULLSCREEN")}, XCB_ATOM_ATOM);
}

void Bystander::map() {
    xcb_map_window(connection_, window_);
    xcb_flush(connection_);
}

void Bystander::raise() {
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(connection_, window_, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    xcb_flush(connection_);
}

bool Bystander::isViewable() const {
    const auto reply = owned(xcb_get_window_attributes_reply(
        connection_, xcb_get_window_attributes(connection_, window_), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool Bystander::hasFocus() const {
    const auto reply =
        owned(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    return reply && reply->focus == window_;
}

bool Bystander::grabKeyboard() {
    const auto cookie = xcb_grab_keyboard(connection_, 0, window_, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
                                          XCB_GRAB_MODE_ASYNC);
    const auto reply = owned(xcb_grab_keyboard_reply(connection_, cookie, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void Bystander::ungrabKeyboard() {
    xcb_ungrab_keyboard(connection_, XCB_CURRENT_TIME);
    xcb_flush(connection_);
}

void Bystander::takeEvents() {
    while (const auto event = owned(xcb_poll_for_event(connection_))) {
        presses_ += (event->response_type & 0x7f) == XCB_BUTTON_PRESS ? 1 : 0;
        keys_ += (event->response_type & 0x7f) == XCB_KEY_PRESS ? 1 : 0;
    }
}

int Bystander::presses() {
    takeEvents();
    return presses_;
}

int Bystander::keys() {
    takeEvents();
    return keys_;
}

} // namespace quietlark::test
