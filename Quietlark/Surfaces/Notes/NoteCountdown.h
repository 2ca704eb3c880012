#pragma once

#include "Quietlark/MainLoop.h"

#include <functional>
#include <memory>
#include <optional>

namespace quietlark {

/// The time that a note has left. A pointer that rests on the note stops it.
class NoteCountdown {
public:
    /// A note that the pointer has just left stays at least this long, in seconds.
    static constexpr double leastAfterHover = 2;

    /// `done` is called once the time is up, never after the countdown was cancelled or destroyed. `loop` outlives it.
    NoteCountdown(MainLoop& loop, std::function<void()> done);
    NoteCountdown(const NoteCountdown&) = delete;
    NoteCountdown& operator=(const NoteCountdown&) = delete;

    /// Begins anew.
    void start(double seconds);

    void cancel() { run_.reset(); }

    /// Whether the pointer is on the note.
    void hover(bool inside);

    bool isHeld() const { return heldWith_.has_value(); }

private:
    MainLoop& loop_;
    std::function<void()> done_;
    std::shared_ptr<const bool> run_; ///< held weakly by the task that ends this run
    double leavesAt_ = 0;             ///< uptime
    std::optional<double> heldWith_;  ///< seconds left while the pointer holds it
};

} // namespace quietlark
