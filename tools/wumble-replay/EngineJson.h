#pragma once

#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Foundation/Json.h"

namespace wumble::replay {

/// The engine's values as recordings have them: times as seconds, a tagged variant as an object with its case
/// as the only key.
Json toJson(const SmartActivity& activity);
Json toJson(const HoldReason& hold);
Json toJson(const PauseReason& reason);
Json toJson(const Phase& phase);
Json toJson(const BreakRecord& record);
Json toJson(const EngineEvent& event);
Json toJson(const EngineEvents& events);

/// All that can be asked of an engine, at the time `now`.
Json stateJson(const BreakEngine& engine, Date now);

/// Absent when it is none.
std::optional<SmartActivity> activityFromJson(const Json::Object& tagged);

} // namespace wumble::replay
