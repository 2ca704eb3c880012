#include "WumbleCore/Foundation/JsonCoding.h"
#include "WumbleCore/Storage/BreakHistory.h"
#include "WumbleCore/Storage/DaySummary.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

/// Reading in one go and in pieces gives the same, and so does reading what was written from it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace wumble;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto records = readHistory(text);

    BreakHistoryReader inPieces;
    for (std::size_t place = 0; place < size; place += 7) {
        inPieces.feed(text.substr(place, 7));
    }
    std::string written;
    for (const auto& record : records) {
        written += JsonEncoder(DateForm::iso8601).encode(record).text().value() + "\n";
    }
    if (inPieces.finish() != records || readHistory(written) != records) {
        std::abort();
    }
    static_cast<void>(DaySummary::summaries(records, Calendar()));
    return 0;
}
