#include "Quietlark/Surfaces/Notes/NoteCountdown.h"

#include <algorithm>
#include <utility>

namespace quietlark {

NoteCountdown::NoteCountdown(MainLoop& loop, std::function<void()> done)
    : loop_(loop), done_(std::move(done)) {}

void NoteCountdown::start(double seconds) {
    run_ = std::make_shared<const bool>(true);
    leavesAt_ = loop_.uptime() + seconds;
    loop_.after(seconds, [this, run = std::weak_ptr(run_)] {
        if (!run.expired()) {
            run_.reset();
            // What follows may destroy this countdown.
            const auto done = done_;
            done();
        }
    });
}

void NoteCountdown::hover(bool inside) {
    if (inside && !heldWith_) {
        cancel();
        heldWith_ = std::max(leavesAt_ - loop_.uptime(), 0.0);
    } else if (!inside && heldWith_) {
        start(std::max(*std::exchange(heldWith_, std::nullopt), leastAfterHover));
    }
}

} // namespace quietlark
