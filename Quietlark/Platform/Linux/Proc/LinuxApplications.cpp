#include "Quietlark/Platform/Linux/Proc/LinuxApplications.h"

#include "Quietlark/Platform/Linux/Proc/WellKnownApps.h"
#include "WumbleCore/Activity/AppBundle.h"
#include "WumbleCore/Activity/GameDetection.h"
#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>

namespace quietlark {

namespace {

constexpr std::string_view categoryPrefix = "public.app-category.";

/// Categories of entries beside "Game" that say what kind of game it is, all by the same pattern ("ActionGame").
constexpr std::string_view gameKindEnding = "game";

std::string listedCategory(const std::string& category) {
    const std::string low = wumble::lowerCased(category);
    const std::string prefix(categoryPrefix);
    if (low == gameKindEnding) {
        return prefix + "games";
    }
    if (low.ends_with(gameKindEnding)) {
        return prefix + std::string(wumble::withoutSuffix(low, gameKindEnding)) + "-games";
    }
    return prefix + low;
}

} // namespace

std::optional<AppRef> LinuxApplications::frontmost() {
    const auto window = _windows.frontWindow();
    if (!window) {
        _front.reset();
        return std::nullopt;
    }
    if (!_front || _front->first != *window) {
        _front = {*window, _identity.identify({.pid = window->pid, .windowClass = window->windowClass})};
    }
    return _front->second;
}

AppRef LinuxApplications::appOfProcess(int pid) {
    const std::string executable = _processes.executable(pid).value_or("");
    const auto known = _known.find(pid);
    if (known != _known.end() && known->second.executable == executable) {
        return known->second.app;
    }
    return _identity.identify({.pid = pid});
}

std::vector<AppRef> LinuxApplications::running() {
    std::map<int, Known> seen;
    std::vector<AppRef> apps;
    for (const int pid : _processes.ofThisPerson()) {
        AppRef app = appOfProcess(pid);
        const bool isAnotherOfOne = std::ranges::any_of(apps, [&](const AppRef& other) {
            return other.bundleID == app.bundleID && other.name == app.name;
        });
        if (app.bundleID && !isAnotherOfOne) {
            apps.push_back(app);
        }
        seen.emplace(pid, Known{_processes.executable(pid).value_or(""), std::move(app)});
    }
    _known = std::move(seen);
    return apps;
}

bool LinuxApplications::isProcessRunning(std::string_view processName) {
    const auto pids = _processes.ofThisPerson();
    return std::ranges::any_of(pids, [&](int pid) { return _processes.name(pid) == processName; });
}

AppInspection LinuxApplications::inspect(const AppRef& app) {
    AppInspection inspection;
    if (const auto executable = _processes.executable(app.pid)) {
        inspection.paths.push_back(*executable);
        std::ranges::copy(wumble::AppBundle::appPaths(*executable), std::back_inserter(inspection.paths));
    }
    if (const auto program = _processes.windowsProgram(app.pid)) {
        inspection.paths.push_back(*program);
    }
    std::vector<std::string> identifiers = app.aliases;
    identifiers.insert(identifiers.begin(), app.bundleID.value_or(""));
    for (const std::string& id : identifiers) {
        if (WellKnownApps::isGameLauncher(id)) {
            inspection.categories = {std::string(categoryPrefix) + "game-store"};
            return inspection;
        }
    }
    for (const std::string& id : identifiers) {
        if (const DesktopEntry* entry = _entries.withID(id)) {
            std::ranges::transform(entry->categories, std::back_inserter(inspection.categories),
                                   listedCategory);
            break;
        }
    }
    return inspection;
}

bool LinuxApplications::frontmostFillsAScreen() {
    const auto window = _windows.frontWindow();
    if (!window) {
        return false;
    }
    const auto rectangles = _windows.rectanglesOfProgram(*window);
    const auto displays = _windows.displays();
    return wumble::GameDetection::fillsADisplay(rectangles, displays);
}

} // namespace quietlark
