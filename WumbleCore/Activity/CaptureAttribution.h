#pragma once

#include "WumbleCore/Foundation/EnumTexts.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Who watches the screen, read from the lines in which the system tells of its sensor indicators.
namespace wumble::CaptureAttribution {

/// What a watcher is: a share with other people, a tool that looks on the person's own behalf, or somebody who
/// works on the machine from afar. Only a share makes a break wait.
enum class Kind { share, agent, remote };

/// Picks the lines out of the log.
inline constexpr std::string_view logPredicate =
    "process == 'ControlCenter' AND subsystem == 'com.apple.controlcenter' AND category == "
    "'sensor-indicators' AND composedMessage BEGINSWITH 'Active activity attributions changed to '";

/// The identifiers of all who watch the screen now, in the order of the line (a JSON object with its text
/// under "eventMessage"). Empty when nobody watches; absent when the line tells nothing of it.
std::optional<std::vector<std::string>> screenCapturersInLogLine(std::string_view line);

/// The same for the text alone: "Active activity attributions changed to " and a JSON list of texts.
std::optional<std::vector<std::string>> screenCapturersInMessage(std::string_view message);

/// Whether an identifier is one of the list or stands below one: "a.b.c" stands below "a.b".
bool matches(std::string_view id, std::span<const std::string_view> list);

Kind kind(std::string_view id);

/// Whether somebody watches from afar and nobody shares. False for an absent or empty list.
bool onlyRemote(const std::optional<std::vector<std::string>>& ids);

/// The name to show, for the few whose own name wouldn't do.
std::optional<std::string_view> knownName(std::string_view id);

} // namespace wumble::CaptureAttribution

namespace wumble {

template <> struct EnumTexts<CaptureAttribution::Kind> {
    static constexpr std::array<std::pair<CaptureAttribution::Kind, std::string_view>, 3> table{{
        {CaptureAttribution::Kind::share, "share"},
        {CaptureAttribution::Kind::agent, "agent"},
        {CaptureAttribution::Kind::remote, "remote"},
    }};
};

} // namespace wumble
