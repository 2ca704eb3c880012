#pragma once

#include "WumbleCore/Engine/BreakKind.h"
#include "WumbleCore/Foundation/Counter.h"
#include "WumbleCore/Foundation/Date.h"
#include "WumbleCore/Foundation/UUID.h"

#include <algorithm>
#include <optional>

namespace wumble {

/// A break in progress.
struct ActiveBreak {
    UUID id; ///< also the id of the record it leaves
    BreakKind kind = BreakKind::shortBreak;
    Date startedAt;
    double duration = 0; ///< planned, in seconds
    Counter snoozesBefore = 0;
    bool awaitingEnd = false;    ///< its time is up and it waits for the end button
    std::optional<bool> preview; ///< absent and false both mean a real break

    bool operator==(const ActiveBreak&) const = default;

    bool isPreview() const { return preview.value_or(false); }
    Date endsAt() const { return startedAt + duration; }

    /// Seconds left, never below 0.
    double remaining(Date now) const { return std::max(endsAt() - now, 0.0); }

    /// From 0 to 1; 1 for a break without length.
    double progress(Date now) const {
        return duration > 0 ? std::clamp((now - startedAt) / duration, 0.0, 1.0) : 1;
    }

    static void visitJsonFields(auto&& visitor) {
        visitor("id", &ActiveBreak::id);
        visitor("kind", &ActiveBreak::kind);
        visitor("startedAt", &ActiveBreak::startedAt);
        visitor("duration", &ActiveBreak::duration);
        visitor("snoozesBefore", &ActiveBreak::snoozesBefore);
        visitor("awaitingEnd", &ActiveBreak::awaitingEnd);
        visitor("preview", &ActiveBreak::preview);
    }
};

} // namespace wumble
