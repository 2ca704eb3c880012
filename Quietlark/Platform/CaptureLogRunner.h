#pragma once

#include <functional>
#include <optional>
#include <string>

namespace quietlark {

/// Where the lines come from that say who watches the screen. All three operations are called on the capture
/// log's queue, and what they take with them is called from any thread.
class CaptureLogRunner {
public:
    using Received = std::function<void(std::string bytes)>;
    using Ended = std::function<void()>;

    virtual ~CaptureLogRunner() = default;

    /// Begins a stream: `received` gets its bytes in order, in pieces that needn't be whole lines; `ended` is
    /// called once when it is over. False when it can't begin, and then neither is ever called.
    virtual bool launch(Received received, Ended ended) = 0;

    /// The lines of the last day, in one run apart from the stream. Absent when they can't be read.
    virtual std::optional<std::string> lookBack() = 0;

    /// Ends the stream, if there is one. Nothing is called any more once this has returned.
    virtual void terminate() = 0;
};

} // namespace quietlark
