#pragma once

#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Life/Recap.h"
#include "WumbleCore/Words/BreakWordPicker.h"
#include "tools/wumble-replay/Arguments.h"

#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace wumble::replay {

/// Why a command couldn't be carried out.
struct Failure {
    std::string reason;
};

using Reply = std::variant<Json, Failure>;

/// Carries out recorded commands, one JSON object a line, and answers each with one line. The same lines
/// always give the same answers: the ids it hands out come from a fixed seed.
class Replay {
public:
    /// The answer to a line, without a line feed; absent for blank lines and comments. `lineNumber` counts
    /// from 1 and is told in errors.
    std::optional<std::string> answer(std::string_view line, std::size_t lineNumber);

    bool hadErrors() const { return hadErrors_; }

    /// All commands with their keys, for people.
    static std::string help();

private:
    struct Command {
        std::string_view name;
        std::string_view keys;
        Reply (Replay::*carryOut)(Arguments&);
        enum class Needs { nothing, engine } needs;
    };
    static const std::vector<Command>& commands();

    Reply carryOut(std::string_view line);

    Reply setCalendar(Arguments& arguments);

    Reply newEngine(Arguments& arguments);
    Reply tick(Arguments& arguments);
    Reply run(Arguments& arguments);
    Reply startBreak(Arguments& arguments);
    Reply startPreview(Arguments& arguments);
    Reply endBreak(Arguments& arguments);
    Reply snooze(Arguments& arguments);
    Reply skip(Arguments& arguments);
    Reply pause(Arguments& arguments);
    Reply resume(Arguments& arguments);
    Reply stop(Arguments& arguments);
    Reply start(Arguments& arguments);
    Reply restart(Arguments& arguments);
    Reply waitForPause(Arguments& arguments);
    Reply ignoreSmartPause(Arguments& arguments);
    Reply stopIgnoringSmartPause(Arguments& arguments);
    Reply update(Arguments& arguments);
    Reply query(Arguments& arguments);
    Reply snapshot(Arguments& arguments);
    Reply restore(Arguments& arguments);

    Reply settings(Arguments& arguments);
    Reply officeHours(Arguments& arguments);
    Reply fittedMove(Arguments& arguments);
    Reply nudgeTimes(Arguments& arguments);

    Reply history(Arguments& arguments);
    Reply summaries(Arguments& arguments);

    Reply seeded(Arguments& arguments);
    Reply life(Arguments& arguments);
    Reply today(Arguments& arguments);
    Reply record(Arguments& arguments);
    Reply story(Arguments& arguments);
    Reply streak(Arguments& arguments);
    Reply recap(Arguments& arguments);
    Reply recaps(Arguments& arguments);
    Reply markSeen(Arguments& arguments);

    Reply words(Arguments& arguments);
    Reply newPicker(Arguments& arguments);
    Reply format(Arguments& arguments);

    Reply choreography(Arguments& arguments);
    Reply jiggle(Arguments& arguments);
    Reply svg(Arguments& arguments);
    Reply notePose(Arguments& arguments);

    Reply game(Arguments& arguments);
    Reply displayName(Arguments& arguments);
    Reply fillsDisplay(Arguments& arguments);
    Reply playback(Arguments& arguments);
    Reply appBundle(Arguments& arguments);
    Reply capturers(Arguments& arguments);

    /// The kept pet of the key "day"; a failure when there is none.
    WumbleDay storedDay(Arguments& arguments) const;

    BreakEngine makeEngine(const WumbleSettings& settings, Date now);

    /// Carries out `operation(now)` on the engine once the keys are known to be right.
    template <class Operation> Reply operate(Arguments& arguments, Operation operation);
    Reply engineReply(const EngineEvents& events) const;

    Calendar calendar_;
    std::mt19937_64 idSource_;
    std::optional<BreakEngine> engine_;
    Date lastNow_;
    std::vector<BreakRecord> history_;
    WumbleLife life_;
    BreakWordPicker picker_;
    bool hadErrors_ = false;
};

} // namespace wumble::replay
