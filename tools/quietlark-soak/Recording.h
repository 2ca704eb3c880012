#pragma once

#include "WumbleCore/Engine/SmartActivity.h"
#include "WumbleCore/Engine/WumbleSettings.h"
#include "WumbleCore/Foundation/Date.h"

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quietlark::soak {

/// What the person does at the end of a scene.
namespace act {
struct Nothing {};
struct Snooze {
    double by = 0;
};
struct Pause {
    std::optional<wumble::Date> until; ///< absent: until they resume
};
struct Skip {};
struct IgnoreSmartPause {};
/// The program ends and starts again.
struct Restart {};
/// The day is told: the moment to count what the program holds.
struct Tell {};
} // namespace act
using Act = std::variant<act::Nothing, act::Snooze, act::Pause, act::Skip, act::IgnoreSmartPause,
                         act::Restart, act::Tell>;

/// A stretch of a recorded day in which one thing goes on.
struct Scene {
    enum class Person { present, away };
    enum class Machine { awake, asleep };

    wumble::Date until;
    Person person = Person::present;
    Machine machine = Machine::awake;
    std::optional<double> secondsSinceKeyDown; ///< as it stands all along; absent: long ago
    std::optional<wumble::SmartActivity> activity;
    Act atEnd = act::Nothing{};
};

/// Recorded days, as `wumble-replay` reads them; what only an engine can be asked is passed over.
struct Recording {
    std::string timeZone = "UTC";
    wumble::Date begin;
    wumble::WumbleSettings settings;
    std::vector<Scene> scenes;

    /// Absent where the file can't be read or begins no engine.
    static std::optional<Recording> read(const std::filesystem::path& file);
};

} // namespace quietlark::soak
