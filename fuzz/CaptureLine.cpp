#include "WumbleCore/Activity/CaptureAttribution.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace wumble::CaptureAttribution;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    screenCapturersInMessage(text);
    const auto ids = screenCapturersInLogLine(text);
    if (!ids) {
        return 0;
    }
    const bool someShare = std::ranges::any_of(*ids, [](const auto& id) { return kind(id) == Kind::share; });
    if (onlyRemote(ids) && (ids->empty() || someShare)) {
        std::abort();
    }
    return 0;
}
