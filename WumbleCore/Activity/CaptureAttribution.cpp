#include "WumbleCore/Activity/CaptureAttribution.h"
#include "WumbleCore/Foundation/JsonCoding.h"
#include "WumbleCore/Foundation/Text.h"

#include <algorithm>

namespace wumble::CaptureAttribution {

namespace {

constexpr std::string_view messagePrefix = "Active activity attributions changed to ";
constexpr std::string_view screenPrefix = "scr:";

constexpr std::array<std::string_view, 3> agents{
    "com.anthropic.claudefordesktop",
    "com.openai.codex",
    "com.openai.chat",
};

constexpr std::array<std::string_view, 2> remotes{
    "com.apple.screensharing.agent",
    "com.apple.RemoteDesktopAgent",
};

constexpr std::array<std::pair<std::string_view, std::string_view>, 8> names{{
    {"com.apple.screensharing.agent", "Screen Sharing"},
    {"com.apple.RemoteDesktopAgent", "Remote Management"},
    {"com.apple.systemuiserver", "the Screenshot toolbar"},
    {"com.apple.screencaptureui", "the Screenshot toolbar"},
    {"us.zoom.xos", "Zoom"},
    {"com.anthropic.claudefordesktop", "Claude"},
    {"com.openai.codex", "ChatGPT"},
    {"com.openai.chat", "ChatGPT"},
}};

constexpr JsonDecoder decoder(DateForm::iso8601);

struct LogEvent {
    std::string eventMessage;

    static void visitJsonFields(auto&& visitor) { visitor("eventMessage", &LogEvent::eventMessage); }
};

template <class Value> std::optional<Value> decoded(std::string_view text) {
    const auto json = parseJson(text).value;
    return json ? decoder.decode<Value>(*json) : std::nullopt;
}

} // namespace

std::optional<std::vector<std::string>> screenCapturersInLogLine(std::string_view line) {
    // The log has many lines of other kinds, and most needn't be parsed.
    if (!contains(line, "eventMessage")) {
        return std::nullopt;
    }
    const auto event = decoded<LogEvent>(line);
    return event ? screenCapturersInMessage(event->eventMessage) : std::nullopt;
}

std::optional<std::vector<std::string>> screenCapturersInMessage(std::string_view message) {
    if (!message.starts_with(messagePrefix)) {
        return std::nullopt;
    }
    const auto entries = decoded<std::vector<std::string>>(message.substr(messagePrefix.size()));
    if (!entries) {
        return std::nullopt;
    }
    std::vector<std::string> capturers;
    for (const auto& entry : *entries) {
        if (entry.starts_with(screenPrefix)) {
            capturers.push_back(entry.substr(screenPrefix.size()));
        }
    }
    return capturers;
}

bool matches(std::string_view id, std::span<const std::string_view> list) {
    return std::ranges::any_of(list, [&](std::string_view entry) {
        return id.starts_with(entry) && (id.size() == entry.size() || id[entry.size()] == '.');
    });
}

Kind kind(std::string_view id) {
    if (matches(id, agents)) {
        return Kind::agent;
    }
    return matches(id, remotes) ? Kind::remote : Kind::share;
}

bool onlyRemote(const std::optional<std::vector<std::string>>& ids) {
    if (!ids) {
        return false;
    }
    const auto isKind = [](Kind wanted) { return [wanted](const auto& id) { return kind(id) == wanted; }; };
    return std::ranges::any_of(*ids, isKind(Kind::remote)) && std::ranges::none_of(*ids, isKind(Kind::share));
}

std::optional<std::string_view> knownName(std::string_view id) {
    const auto known = std::ranges::find(names, id, [](const auto& entry) { return entry.first; });
    return known == names.end() ? std::nullopt : std::optional(known->second);
}

} // namespace wumble::CaptureAttribution
