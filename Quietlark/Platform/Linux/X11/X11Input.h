#pragma once

#include "Quietlark/Platform/Linux/X11/X11Clock.h"
#include "Quietlark/Platform/Linux/X11/X11Connection.h"

#include <optional>
#include <vector>

namespace quietlark {

/// When the person last touched the machine, from raw input events and the screen saver's idle time. All times are
/// the main loop's.
class X11Input {
public:
    /// `connection` outlives this.
    explicit X11Input(X11Connection& connection) : connection_(connection) {}

    void take(const xcb_generic_event_t& event);

    /// Asks for what may have changed without an event.
    void ask();

    /// Brings the events on the main loop's time, once the round's answers are in.
    void conclude();

    bool hasAnswered() const;
    /// Absent as well where the server tells no idle time: raw events alone leave out the pointer's way.
    std::optional<double> lastInput() const;
    std::optional<double> lastKeyDown() const { return lastKeyDown_; }
    std::optional<double> lastLeftDown() const { return left_.lastDown; }
    std::optional<double> lastRightDown() const { return right_.lastDown; }
    bool leftHeld() const { return left_.isHeld; }
    bool rightHeld() const { return right_.isHeld; }

    /// The server's time as late as it is known, for requests that tell when the person asked for something.
    std::uint32_t serverTime() const { return clock_.lastTold(); }

private:
    struct Button {
        std::optional<double> lastDown;
        bool isHeld = false;
    };
    /// Something happened then; `place` keeps when, absent for input of no kind that is told apart.
    struct Happening {
        X11Time time = 0;
        std::optional<double>* place = nullptr;
    };

    void takeButton(std::uint32_t number, X11Time time, bool isDown);
    void askTime();
    void askButtons();
    void takeStamp(double askedAt);
    void noteInput(X11Time time);
    double uptimeOf(X11Time time) const;

    X11Connection& connection_;
    X11Clock clock_;
    std::vector<Happening> happenings_;
    std::optional<X11Time> stamp_; ///< the server's time at the last question, once that has come
    std::optional<X11Time> lastInputTime_;
    std::optional<double> lastInput_;
    std::optional<double> lastKeyDown_;
    std::optional<double> idleAsked_;
    Button left_;
    Button right_;
};

} // namespace quietlark
