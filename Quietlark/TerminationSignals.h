#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace quietlark {

/// The signals by which the system, a terminal or a session asks the process to end (TERM, INT, HUP), taken on the
/// main thread like anything else, so that what has to be saved is saved.
class TerminationSignals {
public:
    /// To be called before any thread is started: threads inherit which signals they leave to others.
    static void hold();

    /// `asked` is called on the main thread, once for each signal. Needs a QCoreApplication, and `hold` before.
    explicit TerminationSignals(std::function<void()> asked);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    std::function<void()> asked_;
    int descriptor_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace quietlark
