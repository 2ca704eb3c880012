#pragma once

#include "Quietlark/Platform/Linux/X11/X11Server.h"

#include <chrono>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <string>

namespace quietlark {

/// A connection that is never waited for: questions are sent, and their answers are taken when they have come. It
/// is a mailbox that somebody empties once in a while, so what the server sends wakes nobody. A server that goes
/// away is looked for again.
class X11Connection {
public:
    /// Gets null when the server refuses the question. Not called any more when the connection is lost.
    using Answer = std::function<void(const void* reply)>;
    using EventReader = std::function<void(const xcb_generic_event_t&)>;

    /// Begins to connect, on a thread of its own: a server that hangs hangs nobody else.
    /// `reader` gets every event.
    X11Connection(std::string display, EventReader reader);

    /// Null while there is none.
    const X11Server* server() const { return server_.get(); }

    /// Whether the first attempt has come to its end, well or not.
    bool hasTried() const { return hasTried_; }

    /// Lets go of a server that went away, and takes a new one. True when `server` is another one than before.
    /// Begins a round.
    bool renew(double uptime);

    /// The main loop's, at this round's beginning.
    double uptime() const { return uptime_; }

    /// The answer to a request that was just made, and with it to all that were made before it.
    void ask(unsigned sequence, Answer answer);

    /// Whether answers are still to come. Who sends more then could fill the way to a server that doesn't read.
    bool isWaiting() const { return !questions_.empty(); }

    /// Sends what is to be sent and takes answers, at the longest for `budget`. Answers may ask again.
    void settle(std::chrono::microseconds budget);

    /// Takes every event that has come.
    void takeEvents();

    /// Sends what is to be sent.
    void flush();

private:
    struct Question {
        unsigned sequence = 0;
        Answer answer;
    };

    void beginAttempt();
    bool isBroken() const;
    bool takeAnswer();

    std::string display_;
    std::unique_ptr<X11Server> server_;
    std::future<std::unique_ptr<X11Server>> attempt_;
    std::deque<Question> questions_;
    EventReader reader_;
    double uptime_ = 0;
    double nextAttempt_ = 0;
    bool hasTried_ = false;
};

} // namespace quietlark
