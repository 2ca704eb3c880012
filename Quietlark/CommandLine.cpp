#include "Quietlark/CommandLine.h"

#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <span>
#include <string_view>

namespace quietlark {

namespace {

using Arguments = std::vector<std::string>;

constexpr int badAppearance = 2;
constexpr int unknownOption = 64;

/// What the program itself reads. An option named here is built; the others are refused.
constexpr std::array<std::string_view, 5> runningOptions{"--appearance", "--demo-break", "--open-settings",
                                                         "--open-collage", "--enable-launch-at-login"};

bool has(const Arguments& arguments, std::string_view option) {
    return std::ranges::find(arguments, option) != arguments.end();
}

std::optional<std::string> valueAfter(const Arguments& arguments, std::string_view option) {
    const auto found = std::ranges::find(arguments, option);
    return found == arguments.end() || found + 1 == arguments.end() ? std::nullopt
                                                                    : std::optional(*(found + 1));
}

/// The number after the option; what is no length of time leaves the usual one.
double secondsAfter(const Arguments& arguments, std::string_view option, double usual) {
    const std::string text = valueAfter(arguments, option).value_or("");
    double seconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    const bool isLength = error == std::errc() && end == text.data() + text.size() && seconds >= 0;
    return isLength && std::isfinite(seconds) ? seconds : usual;
}

std::optional<std::string> appearanceWord(const Arguments& arguments) {
    const auto value = valueAfter(arguments, "--appearance");
    return value ? std::optional(wumble::lowerCased(*value)) : std::nullopt;
}

bool namesNoAppearance(const Arguments& arguments) {
    const auto word = appearanceWord(arguments);
    return word && !wumble::enumFromText<wumble::Appearance>(*word);
}

/// The one after the option; an option of its own is none.
std::string folderAfter(std::string_view option, const Arguments& arguments) {
    const std::string folder = valueAfter(arguments, option).value_or("");
    return folder.starts_with("--") ? "" : folder;
}

command::Render renderLight(std::string_view option, const Arguments& arguments) {
    return {.option = std::string(option), .folder = folderAfter(option, arguments)};
}

command::Render render(std::string_view option, const Arguments& arguments) {
    command::Render asked = renderLight(option, arguments);
    const std::string word = appearanceWord(arguments).value_or("");
    asked.appearance = wumble::enumFromText<wumble::Appearance>(word).value_or(asked.appearance);
    return asked;
}

Command appIcon(std::string_view option, const Arguments& arguments) {
    const bool checks = has(arguments, "--check");
    if (checks || has(arguments, "--sync")) {
        return command::KeepIcon{.folder = folderAfter(option, arguments), .bringInStep = !checks};
    }
    return renderLight(option, arguments);
}

/// An option that makes the process something else than the application.
struct Tool {
    std::string_view option;
    Command (*command)(std::string_view option, const Arguments& arguments);
};

/// Those that are looked for before the appearance is read, in their order, and those after it.
constexpr std::array earlyTools{
    Tool{"--sprite-sheet", [](auto option, auto& all) -> Command { return renderLight(option, all); }},
    Tool{"--icon-options", [](auto option, auto& all) -> Command { return renderLight(option, all); }},
    Tool{"--app-icon", appIcon},
    Tool{"--render-previews", [](auto option, auto& all) -> Command { return renderLight(option, all); }},
};
constexpr std::array tools{
    Tool{"--ux-review", [](auto option, auto& all) -> Command { return render(option, all); }},
    Tool{"--nudge-clips", [](auto option, auto& all) -> Command { return render(option, all); }},
    Tool{"--motion-clips", [](auto option, auto& all) -> Command { return render(option, all); }},
    Tool{"--nudge-cards", [](auto option, auto& all) -> Command { return render(option, all); }},
    Tool{"--export-sounds", [](auto option, auto& all) -> Command { return render(option, all); }},
    Tool{"--watch-mic",
         [](auto option, auto& all) -> Command {
             return command::WatchMicrophone{secondsAfter(all, option, command::WatchMicrophone{}.seconds)};
         }},
    Tool{"--watch-capture",
         [](auto option, auto& all) -> Command {
             return command::WatchCapture{secondsAfter(all, option, command::WatchCapture{}.seconds)};
         }},
    Tool{"--looks-sheets", [](auto option, auto& all) -> Command { return render(option, all); }},
    Tool{"--diagnose", [](auto, auto&) -> Command { return command::Diagnose{}; }},
};

std::optional<Command> firstOf(std::span<const Tool> table, const Arguments& arguments) {
    const auto found =
        std::ranges::find_if(table, [&](const Tool& tool) { return has(arguments, tool.option); });
    return found == table.end() ? std::nullopt : std::optional(found->command(found->option, arguments));
}

std::optional<std::string> firstUnknownOption(const Arguments& arguments) {
    const auto isUnknown = [](const std::string& argument) {
        return argument.starts_with("--") &&
               std::ranges::find(runningOptions, argument) == runningOptions.end();
    };
    const auto found = std::ranges::find_if(arguments, isUnknown);
    return found == arguments.end() ? std::nullopt : std::optional(*found);
}

} // namespace

Command commandFor(const Arguments& arguments) {
    if (const auto tool = firstOf(earlyTools, arguments)) {
        return *tool;
    }
    if (namesNoAppearance(arguments)) {
        return command::Refuse{"--appearance takes light, dark or system\n", badAppearance};
    }
    if (const auto tool = firstOf(tools, arguments)) {
        return *tool;
    }
    if (const auto unknown = firstUnknownOption(arguments)) {
        return command::Refuse{"Unknown option " + *unknown + ", so Quietlark isn't starting.\n",
                               unknownOption};
    }
    return command::RunApplication{.demoBreak = has(arguments, "--demo-break"),
                                   .openSettings = has(arguments, "--open-settings"),
                                   .openCollage = has(arguments, "--open-collage"),
                                   .enableLaunchAtLogin = has(arguments, "--enable-launch-at-login")};
}

} // namespace quietlark
