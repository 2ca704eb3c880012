#pragma once

#include "Quietlark/Platform/CaptureLogRunner.h"

#include <mutex>
#include <vector>

namespace quietlark {

/// The line that says who watches the screen now, written on one thread and read on another.
class CaptureLines {
public:
    /// Who watches now, by identifier. A change goes to whoever listens; the same list again doesn't.
    void setWatchers(const std::vector<std::string>& identifiers);

    /// Nobody can tell for now. Whoever listens goes on listening and is told the next list, whatever it is.
    void forget();

    /// The line as it stands now, with its newline. Absent while nobody can tell.
    std::optional<std::string> current() const;

    /// A second listener takes the place of the first.
    void listen(CaptureLogRunner::Received received);

    /// Nothing is called any more once this has returned. Not to be called by a listener.
    void stopListening();

private:
    mutable std::mutex lock_; ///< held while a listener is called, so that none is called after it has left
    std::optional<std::string> current_;
    CaptureLogRunner::Received received_;
};

} // namespace quietlark
