#pragma once

#include "Quietlark/Activity/SerialQueue.h"
#include "Quietlark/Platform/CaptureLogRunner.h"
#include "WumbleCore/Foundation/Date.h"

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// Follows the log that says who watches the screen, on a queue of its own: reading may take long, and the main
/// thread only ever takes what stands here.
class CaptureLog {
public:
    /// A capture whose attribution hasn't been read yet isn't acted on; this is how long one waits for it at most.
    static constexpr double settleSeconds = 10;
    static constexpr double firstRetrySeconds = 30;
    static constexpr double longestRetrySeconds = 600;

    /// `now` gives the wall clock and is called on the queue.
    CaptureLog(std::unique_ptr<CaptureLogRunner> runner, std::function<wumble::Date()> now);

    /// Ends the stream and waits for the queue.
    ~CaptureLog();
    CaptureLog(const CaptureLog&) = delete;
    CaptureLog& operator=(const CaptureLog&) = delete;

    /// Called on the queue whenever `latest` has changed. Set before `start`.
    void setOnChange(std::function<void()> onChange) { onChange_ = std::move(onChange); }

    void start();

    /// Ends the stream on the queue; it isn't started again.
    void stop();

    /// Reads the lines of the past once more, on the queue.
    void lookBackNow();

    /// Who watches now, by identifier; absent while the log has no word on it.
    std::optional<std::vector<std::string>> latest() const;

    /// Until when a capture isn't acted on; absent when the log has spoken.
    std::optional<wumble::Date> settleUntil() const;

private:
    using Attributions = std::optional<std::vector<std::string>>;

    void launch();
    void lookBack();
    void received(const std::string& bytes);
    void heard(std::vector<std::string> capturers);
    void ended();
    void retryLater();

    std::function<void()> onChange_;
    std::function<wumble::Date()> now_;

    mutable std::mutex lock_; ///< guards the next three
    Attributions latest_;
    std::optional<wumble::Date> settleUntil_;
    bool heardLive_ = false;

    // Below: the queue's alone.
    std::unique_ptr<CaptureLogRunner> runner_;
    bool streaming_ = false;
    bool stopped_ = false;
    int failures_ = 0;
    std::string buffer_;

    SerialQueue queue_; ///< last, so that it ends first
};

} // namespace quietlark
