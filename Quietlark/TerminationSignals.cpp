#include "Quietlark/TerminationSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>
#include <utility>

namespace quietlark {

namespace {

sigset_t termination() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&signals, number);
    }
    return signals;
}

} // namespace

void TerminationSignals::hold() {
    const sigset_t signals = termination();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

TerminationSignals::TerminationSignals(std::function<void()> asked) : asked_(std::move(asked)) {
    const sigset_t signals = termination();
    descriptor_ = signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
    if (descriptor_ < 0) {
        // Without the descriptor the signals go back to ending the process by themselves.
        pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        signalfd_siginfo received{};
        while (read(descriptor_, &received, sizeof received) == sizeof received) {
            asked_();
        }
    });
}

TerminationSignals::~TerminationSignals() {
    notifier_.reset();
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

} // namespace quietlark
