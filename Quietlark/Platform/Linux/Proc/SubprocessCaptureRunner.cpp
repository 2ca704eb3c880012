#include "Quietlark/Platform/Linux/Proc/SubprocessCaptureRunner.h"

#include "Quietlark/Platform/Linux/Proc/Subprocess.h"

#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace quietlark {

SubprocessCaptureRunner::SubprocessCaptureRunner(Command stream, Command lookBack)
    : stream_(std::move(stream)), lookBack_(std::move(lookBack)) {}

SubprocessCaptureRunner::~SubprocessCaptureRunner() { terminate(); }

bool SubprocessCaptureRunner::launch(Received received, Ended ended) {
    terminate();
    Subprocess process(stream_);
    stop_ = eventfd(0, EFD_CLOEXEC);
    if (!process.isStarted() || stop_ < 0) {
        return false;
    }
    reader_ = std::thread([process = std::move(process), stop = stop_, received = std::move(received),
                           ended = std::move(ended)]() mutable {
        constexpr double withoutEnd = -1;
        if (process.read(received, stop, withoutEnd)) {
            process.endsWell();
            ended();
        }
    });
    return true;
}

std::optional<std::string> SubprocessCaptureRunner::lookBack() {
    Subprocess process(lookBack_);
    std::string lines;
    const auto collect = [&lines](const std::string& bytes) { lines += bytes; };
    constexpr int nothingStopsIt = -1;
    const bool isWhole = process.isStarted() && process.read(collect, nothingStopsIt, longestLookBack);
    return isWhole && process.endsWell() ? std::optional(lines) : std::nullopt;
}

void SubprocessCaptureRunner::terminate() {
    if (reader_.joinable()) {
        eventfd_write(stop_, 1);
        reader_.join();
    }
    if (stop_ >= 0) {
        close(std::exchange(stop_, -1));
    }
}

} // namespace quietlark
