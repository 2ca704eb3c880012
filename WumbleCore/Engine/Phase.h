#pragma once

#include "WumbleCore/Engine/ActiveBreak.h"
#include "WumbleCore/Engine/SmartActivity.h"

namespace wumble {

namespace pause {

struct Manual {
    std::optional<Date> until; ///< absent: until the person resumes
    bool operator==(const Manual&) const = default;
};

struct Away {
    Date since;
    bool operator==(const Away&) const = default;
};

struct OffHours {
    bool operator==(const OffHours&) const = default;
};

} // namespace pause

using PauseReason = std::variant<pause::Manual, pause::Away, pause::OffHours>;

namespace phase {

struct Working {
    bool operator==(const Working&) const = default;
};

struct OnBreak {
    ActiveBreak activeBreak;
    bool operator==(const OnBreak&) const = default;
};

struct Paused {
    PauseReason reason;
    bool operator==(const Paused&) const = default;
};

struct Stopped {
    bool operator==(const Stopped&) const = default;
};

} // namespace phase

/// What the engine is in the middle of.
using Phase = std::variant<phase::Working, phase::OnBreak, phase::Paused, phase::Stopped>;

namespace hold {

struct Smart {
    SmartActivity activity;
    bool operator==(const Smart&) const = default;
};

/// For display; the engine itself never holds for it.
struct Cooldown {
    Date until;
    bool operator==(const Cooldown&) const = default;
};

struct Typing {
    bool operator==(const Typing&) const = default;
};

} // namespace hold

/// Why a due break may not start right now.
using HoldReason = std::variant<hold::Smart, hold::Cooldown, hold::Typing>;

} // namespace wumble
