#pragma once

#include "WumbleCore/Engine/ActiveBreak.h"

namespace wumble {

/// What of the engine survives the end of the program.
struct EngineSnapshot {
    Date savedAt;
    double workElapsed = 0;
    std::optional<Counter> breaksInCycle; ///< retired: read, never written
    Counter snoozesThisBreak = 0;
    Counter snoozesToday = 0;
    Date snoozeDay;
    bool stopped = false;
    bool manualPause = false;
    std::optional<Date> manualPauseUntil;
    std::optional<Counter> advanceSkipsToday;
    std::optional<ActiveBreak> activeBreak;
    std::optional<Counter> nudgeTurn;
    std::optional<double> moveCarry;
    std::optional<bool> moveRetried;

    bool operator==(const EngineSnapshot&) const = default;

    static void visitJsonFields(auto&& visitor) {
        visitor("savedAt", &EngineSnapshot::savedAt);
        visitor("workElapsed", &EngineSnapshot::workElapsed);
        visitor("breaksInCycle", &EngineSnapshot::breaksInCycle);
        visitor("snoozesThisBreak", &EngineSnapshot::snoozesThisBreak);
        visitor("snoozesToday", &EngineSnapshot::snoozesToday);
        visitor("snoozeDay", &EngineSnapshot::snoozeDay);
        visitor("stopped", &EngineSnapshot::stopped);
        visitor("manualPause", &EngineSnapshot::manualPause);
        visitor("manualPauseUntil", &EngineSnapshot::manualPauseUntil);
        visitor("advanceSkipsToday", &EngineSnapshot::advanceSkipsToday);
        visitor("activeBreak", &EngineSnapshot::activeBreak);
        visitor("nudgeTurn", &EngineSnapshot::nudgeTurn);
        visitor("moveCarry", &EngineSnapshot::moveCarry);
        visitor("moveRetried", &EngineSnapshot::moveRetried);
    }
};

} // namespace wumble
