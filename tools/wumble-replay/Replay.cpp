#include "tools/wumble-replay/Replay.h"

#include <algorithm>

namespace wumble::replay {

namespace {

bool isBlank(std::string_view line) { return line.find_first_not_of(" \t\r") == std::string_view::npos; }

std::string errorLine(const std::string& reason, std::size_t lineNumber) {
    const Json error(Json::Object{{"error", reason}, {"line", static_cast<Counter>(lineNumber)}});
    return error.text().value_or("");
}

} // namespace

const std::vector<Replay::Command>& Replay::commands() {
    using Needs = Command::Needs;
    static const std::vector<Command> commands{
        {"calendar", "timeZone, firstWeekday (1: Sunday)", &Replay::setCalendar, Needs::nothing},
        {"new", "now, settings?", &Replay::newEngine, Needs::nothing},
        {"tick",
         "now, idleSeconds?, secondsSinceKeyDown?, screenLocked?, smartActivity?, liveShare?, "
         "withinOfficeHours?",
         &Replay::tick, Needs::engine},
        {"run", "until, every, and the keys of tick but for now", &Replay::run, Needs::engine},
        {"startBreak", "now, kind?, duration?", &Replay::startBreak, Needs::engine},
        {"startPreview", "now, duration", &Replay::startPreview, Needs::engine},
        {"endBreak", "now", &Replay::endBreak, Needs::engine},
        {"snooze", "now, by", &Replay::snooze, Needs::engine},
        {"skip", "now, force?", &Replay::skip, Needs::engine},
        {"pause", "now, until?", &Replay::pause, Needs::engine},
        {"resume", "now", &Replay::resume, Needs::engine},
        {"stop", "now", &Replay::stop, Needs::engine},
        {"start", "now", &Replay::start, Needs::engine},
        {"restart", "now", &Replay::restart, Needs::engine},
        {"waitForPause", "now", &Replay::waitForPause, Needs::engine},
        {"ignoreSmartPause", "now", &Replay::ignoreSmartPause, Needs::engine},
        {"stopIgnoringSmartPause", "now", &Replay::stopIgnoringSmartPause, Needs::engine},
        {"update", "settings", &Replay::update, Needs::engine},
        {"query", "now", &Replay::query, Needs::engine},
        {"snapshot", "now", &Replay::snapshot, Needs::engine},
        {"restore", "now, snapshot", &Replay::restore, Needs::engine},
        {"settings", "text", &Replay::settings, Needs::nothing},
        {"officeHours", "date", &Replay::officeHours, Needs::engine},
        {"fittedMove", "move, eye", &Replay::fittedMove, Needs::nothing},
        {"nudgeTimes", "span", &Replay::nudgeTimes, Needs::engine},
        {"history", "text", &Replay::history, Needs::nothing},
        {"summaries", "", &Replay::summaries, Needs::nothing},
        {"seeded", "seed", &Replay::seeded, Needs::nothing},
        {"life", "life?", &Replay::life, Needs::nothing},
        {"today", "date, draws", &Replay::today, Needs::nothing},
        {"record", "record, draws", &Replay::record, Needs::nothing},
        {"story", "day", &Replay::story, Needs::nothing},
        {"streak", "date, workdays? (1: Sunday)", &Replay::streak, Needs::nothing},
        {"recap", "period (week, month), date", &Replay::recap, Needs::nothing},
        {"recaps", "now, announced, seen", &Replay::recaps, Needs::nothing},
        {"markSeen", "period, date, now", &Replay::markSeen, Needs::nothing},
        {"words", "long, date, day, afterCall, moments, draws", &Replay::words, Needs::nothing},
        {"newPicker", "", &Replay::newPicker, Needs::nothing},
        {"format", "seconds", &Replay::format, Needs::nothing},
        {"choreography", "t", &Replay::choreography, Needs::nothing},
        {"jiggle", "preset (wumble, stiff), history ([[x,y],...], newest first)", &Replay::jiggle,
         Needs::nothing},
        {"svg", "path", &Replay::svg, Needs::nothing},
        {"notePose", "t, entrance, covering, leaving, reduceMotion", &Replay::notePose, Needs::nothing},
        {"game", "bundleID?, categories, paths", &Replay::game, Needs::nothing},
        {"displayName", "name?", &Replay::displayName, Needs::nothing},
        {"fillsDisplay", "rect ([x,y,w,h]), displays ([{frame,topInset},...])", &Replay::fillsDisplay,
         Needs::nothing},
        {"playback", "name?", &Replay::playback, Needs::nothing},
        {"appBundle", "path", &Replay::appBundle, Needs::nothing},
        {"capturers", "line", &Replay::capturers, Needs::nothing},
    };
    return commands;
}

std::string Replay::help() {
    std::string text =
        "wumble-replay reads one JSON object a line and answers each with one line.\n"
        "Blank lines and lines that begin with # are passed over.\n\n"
        "Times are seconds since the Unix epoch, lengths are seconds; a ? marks a key that may be "
        "missing.\n\n";
    for (const auto& command : commands()) {
        constexpr std::size_t column = 26;
        std::string name = "  {\"do\":\"" + std::string(command.name) + "\"}";
        name.resize(std::max(column + 10, name.size() + 1), ' ');
        text += name + std::string(command.keys) + "\n";
    }
    return text;
}

std::optional<std::string> Replay::answer(std::string_view line, std::size_t lineNumber) {
    if (isBlank(line) || line.starts_with('#')) {
        return std::nullopt;
    }
    Reply reply = carryOut(line);
    if (const auto* json = std::get_if<Json>(&reply)) {
        if (auto text = json->text()) {
            return text;
        }
        reply = Failure{"the answer holds a number or a date that can't be written"};
    }
    hadErrors_ = true;
    return errorLine(std::get<Failure>(reply).reason, lineNumber);
}

Reply Replay::carryOut(std::string_view line) {
    const auto parsed = parseJson(line);
    if (!parsed.value) {
        return Failure{"not JSON: " + parsed.error};
    }
    const auto* keys = parsed.value->object();
    if (keys == nullptr) {
        return Failure{"not a JSON object"};
    }
    Arguments arguments(*keys);
    const auto name = arguments.required<std::string>("do");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    const auto command = std::ranges::find(commands(), name, &Command::name);
    if (command == commands().end()) {
        return Failure{"unknown command \"" + name + "\""};
    }
    if (command->needs == Command::Needs::engine && !engine_) {
        return Failure{"\"" + name + "\" needs an engine; \"new\" makes one"};
    }
    return (this->*command->carryOut)(arguments);
}

Reply Replay::setCalendar(Arguments& arguments) {
    const auto timeZone = arguments.required<std::string>("timeZone");
    const auto firstWeekday = arguments.required<Counter>("firstWeekday");
    if (firstWeekday < 1 || firstWeekday > 7) {
        arguments.fail("firstWeekday", "is not from 1 to 7");
    }
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    auto calendar = Calendar::make(timeZone, "en_US", static_cast<int>(firstWeekday));
    if (!calendar) {
        return Failure{"unknown time zone \"" + timeZone + "\""};
    }
    calendar_ = std::move(*calendar);
    return Json(Json::Object{{"ok", true}});
}

} // namespace wumble::replay
