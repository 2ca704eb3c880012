#include "Quietlark/Platform/Linux/Video/VideoServices.h"

#include "Quietlark/Platform/Linux/Video/PipeWireCaptureRunner.h"
#include "Quietlark/Platform/Linux/Video/ScreenCasts.h"
#include "Quietlark/Platform/Linux/Video/V4L2Cameras.h"

namespace quietlark {

namespace {

class LinuxCamera final : public Camera {
public:
    LinuxCamera(std::shared_ptr<ScreenCasts> casts, std::filesystem::path deviceFolder)
        : casts_(std::move(casts)), files_(std::move(deviceFolder)) {}

    bool ready() const override { return casts_->ready() && files_.ready(); }
    void refresh(double uptime) override {
        casts_->refresh(uptime);
        files_.refresh();
    }
    bool inUse() const override { return files_.isHeld() || casts_->cameraRuns(); }

private:
    std::shared_ptr<ScreenCasts> casts_;
    V4L2Cameras files_;
};

class PipeWireScreenWatch final : public ScreenWatch {
public:
    explicit PipeWireScreenWatch(std::shared_ptr<ScreenCasts> casts) : casts_(std::move(casts)) {}

    bool ready() const override { return casts_->ready(); }
    void refresh(double uptime) override { casts_->refresh(uptime); }
    std::optional<bool> isWatched() const override { return casts_->isWatched(); }

private:
    std::shared_ptr<ScreenCasts> casts_;
};

} // namespace

VideoServices makeVideoServices(AppIdentity& identity, std::filesystem::path deviceFolder) {
    const auto casts = std::make_shared<ScreenCasts>(identity);
    return {.camera = std::make_unique<LinuxCamera>(casts, std::move(deviceFolder)),
            .screenWatch = std::make_unique<PipeWireScreenWatch>(casts),
            .captureLogRunner = std::make_unique<PipeWireCaptureRunner>(casts->lines())};
}

} // namespace quietlark
