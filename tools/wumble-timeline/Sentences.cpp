#include "tools/wumble-timeline/Sentences.h"
#include "WumbleCore/Engine/BreakKind.h"
#include "WumbleCore/Words/Format.h"

#include <array>
#include <cstdio>

namespace wumble::timeline {

namespace {

std::string text(const Json& json) {
    const auto* value = json.string();
    return value != nullptr ? *value : "";
}

double number(const Json& json) { return json.number().value_or(0); }

bool isTrue(const Json& json) {
    const bool* value = json.boolean();
    return value != nullptr && *value;
}

std::string duration(const Json& json) { return Format::duration(number(json)); }

std::string kindTitle(const Json& kind) {
    const auto known = enumFromText<BreakKind>(text(kind));
    return known ? std::string(title(*known)) : "Break";
}

std::string clockTime(const Json& time, const Calendar& calendar) {
    return timeline::clockTime(Date{number(time)}, calendar);
}

/// The only key of a tagged value and what stands under it.
struct Tagged {
    std::string name;
    const Json& payload;
};

Tagged tagged(const Json& json) {
    const auto* object = json.object();
    if (object == nullptr || object->empty()) {
        return {"", json};
    }
    return {object->begin()->first, object->begin()->second};
}

std::string activityTitle(const Json& activity) {
    const auto [name, payload] = tagged(activity);
    const auto app = text(member(payload, "app"));
    struct Title {
        std::string_view name;
        std::string_view words;
        std::string_view joint;
    };
    constexpr std::array titles{
        Title{"meeting", "A call", " in "},      Title{"screenSharing", "A shared screen", " via "},
        Title{"video", "A video", " in "},       Title{"game", "A game", ": "},
        Title{"focusApp", "Deep focus", " in "},
    };
    for (const auto& title : titles) {
        if (title.name == name) {
            return std::string(title.words) + (app.empty() ? "" : std::string(title.joint) + app);
        }
    }
    return "Something";
}

std::string startedSentence(const Json& started) {
    const bool isPreview = isTrue(member(started, "preview"));
    return (isPreview ? "Preview" : kindTitle(member(started, "kind"))) + ", " +
           duration(member(started, "duration"));
}

/// A break that was taken has been told when it began.
std::string finishedSentence(const Json& record) {
    const bool isSkipped = text(member(record, "outcome")) == "skipped";
    return isSkipped ? kindTitle(member(record, "kind")) + " skipped" : "";
}

std::string returnedSentence(const Json& returned) {
    const auto away = "Back after " + duration(member(returned, "awayFor"));
    return away + (isTrue(member(returned, "freshSession")) ? ", which counts as a long break" : "");
}

std::string activitySentence(const Json& changed) {
    const auto& activity = member(changed, "activity");
    return activity.isNull() ? "Nothing to wait for any more" : activityTitle(activity) + ": breaks wait";
}

std::string counted(const Json& count, const std::string& noun) {
    const auto whole = count.wholeNumber().value_or(0);
    return std::to_string(whole) + " " + noun + (whole == 1 ? "" : "s");
}

std::vector<std::string> storySentences(const Json& answer, const Calendar& calendar) {
    std::vector<std::string> sentences;
    if (const auto* story = member(answer, "story").array()) {
        for (const auto& event : *story) {
            sentences.push_back("Wumble, " + clockTime(member(event, "time"), calendar) + ": " +
                                text(member(event, "title")));
        }
    }
    sentences.push_back("Wumble says: " + text(member(answer, "detail")));
    return sentences;
}

std::string recapSentence(const Json& command, const Json& answer) {
    const auto* wumbles = member(answer, "wumbles").array();
    Counter present = 0;
    for (std::size_t place = 0; wumbles != nullptr && place < wumbles->size(); ++place) {
        present += (*wumbles)[place].isNull() ? 0 : 1;
    }
    return "The " + text(member(command, "period")) + " in review: " + counted(present, "Wumble") + ", " +
           counted(member(answer, "completed"), "break") + " taken, " +
           std::to_string(member(answer, "skipped").wholeNumber().value_or(0)) + " skipped, " +
           counted(member(answer, "natural"), "pause") + " away, " +
           std::to_string(member(answer, "fullyRevealed").wholeNumber().value_or(0)) + " fully grown";
}

} // namespace

std::string clockTime(Date date, const Calendar& calendar) {
    const int minute = calendar.minuteOfDay(date);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%02d:%02d", minute / 60, minute % 60);
    return text.data();
}

const Json& member(const Json& object, std::string_view key) {
    static const Json nothing;
    const auto* members = object.object();
    if (members == nullptr) {
        return nothing;
    }
    const auto found = members->find(key);
    return found == members->end() ? nothing : found->second;
}

std::string eventSentence(const Json& event, const Calendar& calendar) {
    const auto [name, payload] = tagged(event);
    if (name == "headsUp") {
        return kindTitle(member(payload, "kind")) + " in " + duration(member(payload, "dueIn"));
    }
    if (name == "breakStarted") {
        return startedSentence(payload);
    }
    if (name == "breakAwaitingEnd") {
        return "The time is up; the break waits for its end button";
    }
    if (name == "breakFinished") {
        return finishedSentence(payload);
    }
    if (name == "snoozed") {
        return "Snoozed for " + duration(member(payload, "by"));
    }
    if (name == "wentAway") {
        return "Away since " + clockTime(member(payload, "since"), calendar);
    }
    if (name == "returned") {
        return returnedSentence(payload);
    }
    if (name == "wellness") {
        return "Nudge: " + text(member(payload, "kind"));
    }
    if (name == "smartActivityChanged") {
        return activitySentence(payload);
    }
    if (name == "officeHoursChanged") {
        return isTrue(member(payload, "inside")) ? "Office hours begin" : "Office hours end";
    }
    if (name == "waitingForPause") {
        return "Waiting for the next pause in typing";
    }
    if (name == "pauseEnded") {
        return "The pause is over";
    }
    return name == "previewEnded" ? "The preview ends" : "";
}

std::string commandSentence(const Json& command, const Calendar& calendar) {
    const auto name = text(member(command, "do"));
    if (name == "new") {
        return "Quietlark starts";
    }
    if (name == "restore") {
        return "Quietlark starts again where it was";
    }
    if (name == "pause") {
        const auto& until = member(command, "until");
        return until.isNull() ? "Paused" : "Paused until " + clockTime(until, calendar);
    }
    struct Doing {
        std::string_view name;
        std::string_view sentence;
    };
    constexpr std::array doings{
        Doing{"resume", "Resumed"},
        Doing{"stop", "Stopped"},
        Doing{"start", "Started"},
        Doing{"restart", "Started the stretch anew"},
        Doing{"update", "Settings changed"},
        Doing{"ignoreSmartPause", "Asked not to wait for it"},
        Doing{"stopIgnoringSmartPause", "Asked to wait after all"},
    };
    for (const auto& doing : doings) {
        if (doing.name == name) {
            return std::string(doing.sentence);
        }
    }
    return "";
}

std::vector<std::string> answerSentences(const Json& command, const Json& answer, const Calendar& calendar) {
    const auto name = text(member(command, "do"));
    if (name == "story") {
        return storySentences(answer, calendar);
    }
    if (name == "recap") {
        return {recapSentence(command, answer)};
    }
    if (name == "streak") {
        return {"A streak of " + counted(member(answer, "streak"), "day")};
    }
    return {};
}

} // namespace wumble::timeline
