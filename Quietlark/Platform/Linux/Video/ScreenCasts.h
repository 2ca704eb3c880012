#pragma once

#include "Quietlark/Platform/Linux/Video/CaptureLines.h"
#include "Quietlark/Platform/Linux/Video/PipeWireConnection.h"

#include <memory>
#include <optional>

namespace quietlark {

/// What the video server tells of screens and cameras, shared by those who ask for one or the other.
class ScreenCasts {
public:
    /// `identity` must outlive it.
    explicit ScreenCasts(AppIdentity& identity);
    ~ScreenCasts() { lines_->end(); }
    ScreenCasts(const ScreenCasts&) = delete;
    ScreenCasts& operator=(const ScreenCasts&) = delete;

    void refresh(double uptime);
    bool ready() const { return connection_.ready(); }

    /// Absent while the server can't be asked.
    std::optional<bool> isWatched() const { return isWatched_; }

    bool cameraRuns() const;

    /// Follows the watchers; outlives this object where somebody still holds it.
    std::shared_ptr<CaptureLines> lines() const { return lines_; }

private:
    void publish();

    AppIdentity& identity_;
    std::shared_ptr<CaptureLines> lines_ = std::make_shared<CaptureLines>();
    std::optional<bool> isWatched_;
    PipeWireConnection connection_;
};

} // namespace quietlark
