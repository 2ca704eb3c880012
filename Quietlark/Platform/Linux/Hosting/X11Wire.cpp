#include "Quietlark/Platform/Linux/Hosting/X11Wire.h"

#include <utility>

#include <xcb/xcbext.h>

namespace quietlark {

namespace {

xcb_window_t rootOf(xcb_connection_t* connection, int screen) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    while (screen-- > 0 && screens.rem > 1) {
        xcb_screen_next(&screens);
    }
    return screens.data->root;
}

/// Sequence numbers wrap around.
bool isBefore(unsigned one, unsigned other) { return static_cast<int>(one - other) < 0; }

} // namespace

std::unique_ptr<X11Wire> X11Wire::open() {
    int screen = 0;
    std::unique_ptr<xcb_connection_t, X11Disconnect> connection(xcb_connect(nullptr, &screen));
    if (xcb_connection_has_error(connection.get()) != 0) {
        return nullptr;
    }
    return std::make_unique<X11Wire>(std::move(connection), screen);
}

X11Wire::X11Wire(std::unique_ptr<xcb_connection_t, X11Disconnect> connection, int screen)
    : connection_(std::move(connection)), screen_(screen), root_(rootOf(get(), screen)),
      notifier_(xcb_get_file_descriptor(get()), QSocketNotifier::Read) {
    later_.setSingleShot(true);
    later_.callOnTimeout([this] { takeAll(); });
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { takeAll(); });
}

xcb_atom_t X11Wire::atom(const std::string& name) const {
    const auto cookie = xcb_intern_atom(get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, X11Free> reply(
        xcb_intern_atom_reply(get(), cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_NONE};
}

bool X11Wire::has(xcb_extension_t& extension) const {
    const auto* data = xcb_get_extension_data(get(), &extension);
    return data != nullptr && data->present != 0;
}

void X11Wire::ask(unsigned sequence, Answer answer) {
    questions_.push_back({sequence, std::move(answer)});
    flush();
}

void X11Wire::selectOnRoot(std::uint32_t events, bool wanted) {
    rootEvents_ = wanted ? rootEvents_ | events : rootEvents_ & ~events;
    xcb_change_window_attributes(get(), root_, XCB_CW_EVENT_MASK, &rootEvents_);
    flush();
}

bool X11Wire::shareMaker(std::uint32_t one, std::uint32_t other) const {
    const std::uint32_t makers = ~xcb_get_setup(get())->resource_id_mask;
    return (one & makers) == (other & makers);
}

void X11Wire::flush() {
    xcb_flush(get());
    later_.start(0);
}

void X11Wire::takeAll() {
    gatherEvents();
    while (takeAnswer()) {
        gatherEvents();
    }
    tellBefore({});
    if (xcb_connection_has_error(get()) != 0) {
        notifier_.setEnabled(false);
    }
}

void X11Wire::gatherEvents() {
    while (Event event{xcb_poll_for_event(get())}) {
        events_.push_back(std::move(event));
    }
}

bool X11Wire::takeAnswer() {
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (questions_.empty() || xcb_poll_for_reply(get(), questions_.front().sequence, &reply, &error) == 0) {
        return false;
    }
    const std::unique_ptr<void, X11Free> ownedReply(reply);
    const std::unique_ptr<xcb_generic_error_t, X11Free> ownedError(error);
    const Question question = std::move(questions_.front());
    questions_.pop_front();
    gatherEvents();
    tellBefore(question.sequence);
    question.answer(ownedReply.get());
    return true;
}

/// All that have come, without one.
void X11Wire::tellBefore(std::optional<unsigned> sequence) {
    while (!events_.empty() && (!sequence || isBefore(events_.front()->full_sequence, *sequence))) {
        const Event event = std::move(events_.front());
        events_.pop_front();
        for (const Reader& reader : readers_) {
            reader(*event);
        }
    }
}

} // namespace quietlark
