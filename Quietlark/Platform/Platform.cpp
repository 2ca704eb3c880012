#include "Quietlark/Platform/Platform.h"

#include <algorithm>
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
    return std::ranges::all_of(sources(*this), [](const Source* source) { return source->ready(); });
}

void Platform::refresh(double uptime) const {
    for (Source* source : sources(*this)) {
        source->refresh(uptime);
    }
}

} // namespace quietlark
