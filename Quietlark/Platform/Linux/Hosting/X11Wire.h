#pragma once

#include "Quietlark/Platform/Linux/X11/X11Server.h"

#include <QSocketNotifier>
#include <QTimer>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// A second connection to the server that Qt is on, for what Qt doesn't watch. What the server sends on it wakes the
/// main loop at once, and nothing is ever waited for.
class X11Wire {
public:
    /// Gets null when the server refuses the question.
    using Answer = std::function<void(const void* reply)>;
    using Reader = std::function<void(const xcb_generic_event_t&)>;

    /// Null when no connection can be had. Waits for the server.
    static std::unique_ptr<X11Wire> open();

    explicit X11Wire(std::unique_ptr<xcb_connection_t, X11Disconnect> connection, int screen);

    xcb_connection_t* get() const { return connection_.get(); }
    xcb_window_t root() const { return root_; }
    int screen() const { return screen_; }

    /// Waits for the server.
    xcb_atom_t atom(const std::string& name) const;

    /// Whether the server knows the extension. Waits for the server at its first call for each.
    bool has(xcb_extension_t& extension) const;

    /// Reads every event from here on.
    void read(Reader reader) { readers_.push_back(std::move(reader)); }

    /// The answer to a request that was just made. Readers have had every event that happened before it by then, and
    /// none that happened later.
    void ask(unsigned sequence, Answer answer);

    /// Chooses which of the root window's events come, as a change of the mask that stands.
    void selectOnRoot(std::uint32_t events, bool wanted);

    /// Whether two windows, or a window and any other resource, were made by the same program.
    bool shareMaker(std::uint32_t one, std::uint32_t other) const;

    void flush();

private:
    struct Question {
        unsigned sequence = 0;
        Answer answer;
    };
    using Event = std::unique_ptr<xcb_generic_event_t, X11Free>;

    void takeAll();
    void gatherEvents();
    bool takeAnswer();
    void tellBefore(std::optional<unsigned> sequence);

    std::unique_ptr<xcb_connection_t, X11Disconnect> connection_;
    int screen_ = 0;
    xcb_window_t root_ = XCB_NONE;
    std::uint32_t rootEvents_ = 0;
    std::vector<Reader> readers_;
    std::deque<Question> questions_;
    std::deque<Event> events_;
    QSocketNotifier notifier_;
    QTimer later_; ///< sending may have read what the notifier then doesn't tell of
};

} // namespace quietlark
