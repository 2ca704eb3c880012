#pragma once

#include "WumbleCore/Foundation/Date.h"
#include "WumbleCore/Motion/NotePose.h"

#include <optional>

namespace wumble {

/// When a note came and went; what it looks like at any moment follows from that alone.
struct NotePresence {
    Date arrived;
    bool covering = false; ///< it lands on a note that is already there
    NoteEntrance entrance = NoteEntrance::slap;
    std::optional<Date> left; ///< when it began to leave

    bool operator==(const NotePresence&) const = default;

    /// At rest before it arrived and once it has; after its exit it stays as it went.
    NotePose pose(Date now, bool reduceMotion) const;

    /// Begins to leave. A second call changes nothing.
    void leave(Date now);

    /// From then on nothing moves until it leaves.
    Date movingUntil() const;
};

} // namespace wumble
