#include "WumbleCore/Engine/WumbleSettings.h"
#include "WumbleCore/Foundation/JsonCoding.h"

#include <cstdint>
#include <cstdlib>

/// Whatever stands in a settings file, what was read can be written, and reading that gives the same again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace wumble;
    const auto settings = WumbleSettings::decode(std::string_view(reinterpret_cast<const char*>(data), size));
    const auto written = JsonEncoder(DateForm::iso8601).encode(settings).text();
    if (!written || WumbleSettings::decode(*written) != settings) {
        std::abort();
    }
    return 0;
}
