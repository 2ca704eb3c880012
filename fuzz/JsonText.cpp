#include "WumbleCore/Foundation/Json.h"

#include <cstdint>
#include <cstdlib>

/// What can be read can be written, and reading that gives the same text again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace wumble;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto parsed = parseJson(text);
    FlatJsonObject flat;
    const bool isObject = parsed.value && parsed.value->object() != nullptr;
    if (flat.parse(text) != isObject) {
        std::abort();
    }
    if (!parsed.value) {
        return 0;
    }
    const auto written = parsed.value->text();
    if (!written || parseJson(*written).value.value().text() != written) {
        std::abort();
    }
    return 0;
}
