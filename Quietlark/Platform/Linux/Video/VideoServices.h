#pragma once

#include "Quietlark/Platform/Camera.h"
#include "Quietlark/Platform/CaptureLogRunner.h"
#include "Quietlark/Platform/Linux/Proc/AppIdentity.h"
#include "Quietlark/Platform/ScreenWatch.h"

#include <filesystem>
#include <memory>

namespace quietlark {

struct VideoServices {
    std::unique_ptr<Camera> camera;
    std::unique_ptr<ScreenWatch> screenWatch;
    std::unique_ptr<CaptureLogRunner> captureLogRunner;
};

/// All three on one connection to the video server. `identity` must outlive them; `deviceFolder` is where the
/// files of cameras lie.
VideoServices makeVideoServices(AppIdentity& identity, std::filesystem::path deviceFolder = "/dev");

} // namespace quietlark
