#pragma once

#include "Quietlark/Platform/CaptureLogRunner.h"

#include <mutex>
#include <vector>

namespace quietlark {

/// The line that says who watches the screen now, written on one thread and read on another.
class CaptureLines {
public:
    /// A stream can be had from now on; its first line may be still to come.
    void begin();

    /// Who watches now, by identifier. A change goes to whoever listens; the same list again doesn't.
    void setWatchers(const std::vector<std::string>& identifiers);

    /// Nobody can tell any more: the stream ends.
    void end();

    /// The line as it stands now, with its newline. Absent before the first and after the end.
    std::optional<std::string> current() const;

    /// False when there is no stream to be had. A second listener takes the place of the first.
    bool listen(CaptureLogRunner::Received received, CaptureLogRunner::Ended ended);

    /// Nothing is called any more once this has returned. Not to be called by a listener.
    void stopListening();

private:
    mutable std::mutex lock_; ///< held while a listener is called, so that none is called after it has left
    bool isOpen_ = false;
    std::optional<std::string> current_;
    CaptureLogRunner::Received received_;
    CaptureLogRunner::Ended ended_;
};

} // namespace quietlark
