#include "tools/wumble-replay/Replay.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace {

using namespace wumble;

/// Knows the earliest time that the engine can have been left at, and so the most ticks that a run can take. A
/// long run is no fault, just slow.
class RunLengths {
public:
    bool isLong(std::string_view line) {
        constexpr double mostTicks = 2000;
        const auto parsed = parseJson(line);
        const auto* keys = parsed.value ? parsed.value->object() : nullptr;
        if (keys == nullptr) {
            return false;
        }
        const auto number = [&](const char* key) {
            const auto member = keys->find(key);
            return member == keys->end() ? std::nullopt : member->second.number();
        };
        const auto until = number("until");
        const auto every = number("every");
        const bool isLong = until && every && (*until - earliest_) / *every > mostTicks;
        earliest_ = std::min({earliest_, number("now").value_or(never), until.value_or(never)});
        return isLong;
    }

private:
    static constexpr double never = std::numeric_limits<double>::infinity();
    double earliest_ = never;
};

} // namespace

/// Every line is answered with one line of JSON, whatever came before it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    replay::Replay replay;
    RunLengths lengths;
    for (std::size_t number = 1; !text.empty(); ++number) {
        const auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (lengths.isLong(line)) {
            continue;
        }
        const auto answer = replay.answer(line, number);
        if (answer && (answer->find('\n') != std::string::npos || !parseJson(*answer).value)) {
            std::abort();
        }
    }
    return 0;
}
