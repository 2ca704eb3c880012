#include "Quietlark/Platform/Platform.h"

#include <array>

namespace quietlark {

namespace {

std::array<Source*, 7> sources(const Platform& platform) {
    return {platform.input.get(),       platform.session.get(), platform.windows.get(),
            platform.microphone.get(),  platform.camera.get(),  platform.screenWatch.get(),
            platform.sleepHolders.get()};
}

} // namespace

bool Platform::ready() const {
    for (const Source* source : sources(*this)) {
        if (!source->ready()) {
            return false;
        }
    }
    return true;
}

void Platform::refresh(double uptime) {
    for (Source* source : sources(*this)) {
        source->refresh(uptime);
    }
}

} // namespace quietlark
