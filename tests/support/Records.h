#pragma once

#include "WumbleCore/Storage/BreakRecord.h"
#include "tests/support/Dates.h"

namespace wumble::test {

/// A taken quick break that ends at the given time.
inline BreakRecord breakEnding(std::string_view end, double duration = 45) {
    return {.id = UUID::random(), .start = at(end) - duration, .end = at(end), .scheduledDuration = duration};
}

/// Time away that ends at the given time.
inline BreakRecord absenceEnding(std::string_view end, double duration) {
    auto record = breakEnding(end, duration);
    record.kind = BreakKind::natural;
    return record;
}

} // namespace wumble::test
