#include "Quietlark/CommandLine.h"

#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

namespace quietlark {

namespace {

using Arguments = std::vector<std::string>;

constexpr int badAppearance = 2;
constexpr int unknownOption = 64;

constexpr std::array<std::string_view, 3> appearances{"light", "dark", "system"};

/// What the program itself reads. An option named here is built; the others are refused.
constexpr std::array<std::string_view, 3> runningOptions{"--appearance", "--demo-break",
                                                         "--enable-launch-at-login"};

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

bool namesNoAppearance(const Arguments& arguments) {
    const auto value = valueAfter(arguments, "--appearance");
    return value && std::ranges::find(appearances, wumble::lowerCased(*value)) == appearances.end();
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
    if (namesNoAppearance(arguments)) {
        return command::Refuse{"--appearance takes light, dark or system\n", badAppearance};
    }
    if (has(arguments, "--watch-mic")) {
        return command::WatchMicrophone{
            secondsAfter(arguments, "--watch-mic", command::WatchMicrophone{}.seconds)};
    }
    if (has(arguments, "--watch-capture")) {
        return command::WatchCapture{
            secondsAfter(arguments, "--watch-capture", command::WatchCapture{}.seconds)};
    }
    if (has(arguments, "--diagnose")) {
        return command::Diagnose{};
    }
    if (const auto unknown = firstUnknownOption(arguments)) {
        return command::Refuse{"Unknown option " + *unknown + ", so Quietlark isn't starting.\n",
                               unknownOption};
    }
    return command::RunApplication{.demoBreak = has(arguments, "--demo-break"),
                                   .enableLaunchAtLogin = has(arguments, "--enable-launch-at-login")};
}

} // namespace quietlark
