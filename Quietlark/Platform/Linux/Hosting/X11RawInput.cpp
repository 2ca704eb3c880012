#include "Quietlark/Platform/Linux/Hosting/X11RawInput.h"

#include <memory>

#include <xcb/xinput.h>

namespace quietlark {

X11RawInput::X11RawInput(X11Wire& wire) : wire_(wire) {
    if (!wire_.has(xcb_input_id)) {
        return;
    }
    const auto cookie = xcb_input_xi_query_version(wire_.get(), 2, 2);
    const std::unique_ptr<xcb_input_xi_query_version_reply_t, X11Free> version(
        xcb_input_xi_query_version_reply(wire_.get(), cookie, nullptr));
    // Before 2.1, what another program has grabbed isn't told.
    const bool isNew = version && (version->major_version > 2 ||
                                   (version->major_version == 2 && version->minor_version >= 1));
    if (isNew) {
        opcode_ = xcb_get_extension_data(wire_.get(), &xcb_input_id)->major_opcode;
        wire_.read([this](const xcb_generic_event_t& event) { take(event); });
    }
}

void X11RawInput::wantKeys(bool wanted) { select(XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS, wanted); }

void X11RawInput::wantButtons(bool wanted) { select(XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS, wanted); }

void X11RawInput::select(std::uint32_t events, bool wanted) {
    const std::uint32_t selected = wanted ? selected_ | events : selected_ & ~events;
    if (!opcode_ || selected == selected_) {
        return;
    }
    selected_ = selected;
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } selection{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, selected_};
    xcb_input_xi_select_events(wire_.get(), wire_.root(), 1, &selection.head);
    wire_.flush();
}

void X11RawInput::take(const xcb_generic_event_t& event) {
    const auto& raw = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event);
    if ((event.response_type & 0x7f) != XCB_GE_GENERIC || raw.extension != *opcode_) {
        return;
    }
    if (raw.event_type == XCB_INPUT_RAW_KEY_PRESS && keyPressed_) {
        keyPressed_();
    } else if (raw.event_type == XCB_INPUT_RAW_BUTTON_PRESS && buttonPressed_) {
        buttonPressed_({raw.detail, raw.time});
    }
}

} // namespace quietlark
