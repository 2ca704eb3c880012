#include "Quietlark/Activity/CaptureLog.h"

#include "WumbleCore/Activity/CaptureAttribution.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>

namespace quietlark {

namespace CaptureAttribution = wumble::CaptureAttribution;

namespace {

/// A line that is longer tells of nothing that is known here; its tail is then read as a line that says nothing.
constexpr std::size_t longestLine = 1 << 20;

} // namespace

CaptureLog::CaptureLog(std::unique_ptr<CaptureLogRunner> runner, std::function<wumble::Date()> now)
    : now_(std::move(now)), runner_(std::move(runner)), queue_("quietlark.capture-log") {}

CaptureLog::~CaptureLog() {
    stop();
    queue_.sync();
}

void CaptureLog::start() {
    queue_.async([this] { launch(); });
}

void CaptureLog::stop() {
    queue_.async([this] {
        stopped_ = true;
        runner_->terminate();
    });
}

void CaptureLog::lookBackNow() {
    queue_.async([this] { lookBack(); });
}

std::optional<std::vector<std::string>> CaptureLog::latest() const {
    const std::lock_guard guard(lock_);
    return latest_;
}

std::optional<wumble::Date> CaptureLog::settleUntil() const {
    const std::lock_guard guard(lock_);
    return settleUntil_;
}

void CaptureLog::launch() {
    if (stopped_ || streaming_) {
        return;
    }
    buffer_.clear();
    streaming_ = runner_->launch(
        [this](std::string bytes) { queue_.async([this, bytes = std::move(bytes)] { received(bytes); }); },
        [this] { queue_.async([this] { ended(); }); });
    if (!streaming_) {
        retryLater();
        return;
    }
    {
        const std::lock_guard guard(lock_);
        heardLive_ = false;
        settleUntil_ = now_() + settleSeconds;
    }
    lookBack();
}

void CaptureLog::lookBack() {
    Attributions lastWord;
    std::istringstream lines(runner_->lookBack().value_or(""));
    for (std::string line; std::getline(lines, line);) {
        if (auto capturers = CaptureAttribution::screenCapturersInLogLine(line)) {
            lastWord = std::move(capturers);
        }
    }
    bool changed = false;
    {
        const std::lock_guard guard(lock_);
        settleUntil_.reset();
        // What the stream said since is newer than anything that the look back can find.
        if (!heardLive_ && lastWord != latest_) {
            latest_ = std::move(lastWord);
            changed = true;
        }
    }
    if (changed && onChange_) {
        onChange_();
    }
}

void CaptureLog::received(const std::string& bytes) {
    buffer_ += bytes;
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = buffer_.find('\n', begin)) != std::string::npos; begin = end + 1) {
        if (auto capturers = CaptureAttribution::screenCapturersInLogLine(
                std::string_view(buffer_).substr(begin, end - begin))) {
            heard(*std::move(capturers));
        }
    }
    buffer_.erase(0, begin);
    if (buffer_.size() > longestLine) {
        buffer_.clear();
    }
}

void CaptureLog::heard(std::vector<std::string> capturers) {
    {
        const std::lock_guard guard(lock_);
        heardLive_ = true;
        settleUntil_.reset();
        if (latest_ == capturers) {
            return;
        }
        latest_ = std::move(capturers);
    }
    if (onChange_) {
        onChange_();
    }
}

void CaptureLog::ended() {
    streaming_ = false;
    retryLater();
}

void CaptureLog::retryLater() {
    if (stopped_) {
        return;
    }
    const double wait = std::min(std::ldexp(firstRetrySeconds, failures_), longestRetrySeconds);
    ++failures_;
    queue_.after(wait, [this] { launch(); });
}

} // namespace quietlark
