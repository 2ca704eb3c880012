#include "tools/wumble-replay/Replay.h"

#include <cstdint>
#include <cstdlib>

namespace {

/// A long run is no fault, just slow.
bool isLongRun(std::string_view line) {
    const auto parsed = wumble::parseJson(line);
    const auto* keys = parsed.value ? parsed.value->object() : nullptr;
    return keys != nullptr && keys->contains("every");
}

} // namespace

/// Every line is answered with one line of JSON, whatever came before it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace wumble;
    std::string_view text(reinterpret_cast<const char*>(data), size);
    replay::Replay replay;
    for (std::size_t number = 1; !text.empty(); ++number) {
        const auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (isLongRun(line)) {
            continue;
        }
        const auto answer = replay.answer(line, number);
        if (answer && (answer->find('\n') != std::string::npos || !parseJson(*answer).value)) {
            std::abort();
        }
    }
    return 0;
}
