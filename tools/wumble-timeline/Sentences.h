#pragma once

#include "WumbleCore/Foundation/Calendar.h"
#include "WumbleCore/Foundation/Json.h"

#include <string>
#include <vector>

namespace wumble::timeline {

/// "09:05"
std::string clockTime(Date date, const Calendar& calendar);

/// A member of an object, or null where there is no such member or no object.
const Json& member(const Json& object, std::string_view key);

/// What an event of the engine tells a person; empty for one that needs no words of its own.
std::string eventSentence(const Json& event, const Calendar& calendar);

/// What the person did, for commands that are a person's doing; empty for all others.
std::string commandSentence(const Json& command, const Calendar& calendar);

/// What an answer that isn't about the engine tells: the pet's story, a recap, a streak.
std::vector<std::string> answerSentences(const Json& command, const Json& answer, const Calendar& calendar);

} // namespace wumble::timeline
