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
    : _now(std::move(now)), _runner(std::move(runner)), _queue("quietlark.capture-log") {}

CaptureLog::~CaptureLog() {
    stop();
    _queue.sync();
}

void CaptureLog::start() {
    _queue.async([this] { launch(); });
}

void CaptureLog::stop() {
    _queue.async([this] {
        _stopped = true;
        _runner->terminate();
    });
}

void CaptureLog::lookBackNow() {
    _queue.async([this] { lookBack(); });
}

std::optional<std::vector<std::string>> CaptureLog::latest() const {
    const std::lock_guard guard(_lock);
    return _latest;
}

std::optional<wumble::Date> CaptureLog::settleUntil() const {
    const std::lock_guard guard(_lock);
    return _settleUntil;
}

void CaptureLog::launch() {
    if (_stopped || _streaming) {
        return;
    }
    _buffer.clear();
    _streaming = _runner->launch(
        [this](std::string bytes) { _queue.async([this, bytes = std::move(bytes)] { received(bytes); }); },
        [this] { _queue.async([this] { ended(); }); });
    if (!_streaming) {
        retryLater();
        return;
    }
    {
        const std::lock_guard guard(_lock);
        _heardLive = false;
        _settleUntil = _now() + settleSeconds;
    }
    lookBack();
}

void CaptureLog::lookBack() {
    Attributions lastWord;
    std::istringstream lines(_runner->lookBack().value_or(""));
    for (std::string line; std::getline(lines, line);) {
        if (auto capturers = CaptureAttribution::screenCapturersInLogLine(line)) {
            lastWord = std::move(capturers);
        }
    }
    bool changed = false;
    {
        const std::lock_guard guard(_lock);
        _settleUntil.reset();
        // What the stream said since is newer than anything that the look back can find.
        if (!_heardLive && lastWord != _latest) {
            _latest = std::move(lastWord);
            changed = true;
        }
    }
    if (changed && _onChange) {
        _onChange();
    }
}

void CaptureLog::received(const std::string& bytes) {
    _buffer += bytes;
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = _buffer.find('\n', begin)) != std::string::npos; begin = end + 1) {
        if (auto capturers = CaptureAttribution::screenCapturersInLogLine(
                std::string_view(_buffer).substr(begin, end - begin))) {
            heard(*std::move(capturers));
        }
    }
    _buffer.erase(0, begin);
    if (_buffer.size() > longestLine) {
        _buffer.clear();
    }
}

void CaptureLog::heard(std::vector<std::string> capturers) {
    {
        const std::lock_guard guard(_lock);
        _heardLive = true;
        _settleUntil.reset();
        if (_latest == capturers) {
            return;
        }
        _latest = std::move(capturers);
    }
    if (_onChange) {
        _onChange();
    }
}

void CaptureLog::ended() {
    _streaming = false;
    retryLater();
}

void CaptureLog::retryLater() {
    if (_stopped) {
        return;
    }
    const double wait = std::min(std::ldexp(firstRetrySeconds, _failures), longestRetrySeconds);
    ++_failures;
    _queue.after(wait, [this] { launch(); });
}

} // namespace quietlark
