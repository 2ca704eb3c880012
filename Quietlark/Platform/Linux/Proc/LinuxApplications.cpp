#include "Quietlark/Platform/Linux/Proc/LinuxApplications.h"

#include "Quietlark/Platform/Linux/Proc/LinuxAppIdentity.h"
#include "Quietlark/Platform/Linux/Proc/WellKnownApps.h"
#include "WumbleCore/Activity/AppBundle.h"
#include "WumbleCore/Activity/GameDetection.h"
#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <set>
#include <utility>

namespace quietlark {

namespace {

constexpr std::string_view categoryPrefix = "public.app-category.";

/// Categories of entries beside "Game" that say what kind of game it is, all by the same pattern ("ActionGame").
constexpr std::string_view gameKindEnding = "game";

/// Where this isn't enough, the next question goes on.
constexpr std::chrono::milliseconds longestFindingOut{2};

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
    // A window of which nothing is known, as those of some window managers themselves, is no program's.
    const auto window = windows_.frontWindow();
    if (!window || (window->pid == 0 && window->windowClass.empty())) {
        front_.reset();
        return std::nullopt;
    }
    if (!front_ || front_->first != *window) {
        front_ = {*window, identity_.identify({.pid = window->pid, .windowClass = window->windowClass})};
    }
    return front_->second;
}

std::vector<AppRef> LinuxApplications::running() {
    lookAtProcesses();
    findOutWhoTheyAre();
    std::set<std::pair<std::string, std::string>> listed;
    std::vector<AppRef> apps;
    for (const auto& [pid, process] : processesSeen_) {
        const auto& app = process.app;
        if (app && app->bundleID && listed.emplace(*app->bundleID, app->name).second) {
            apps.push_back(*app);
        }
    }
    return apps;
}

bool LinuxApplications::isProcessRunning(std::string_view processName) {
    lookAtProcesses();
    return std::ranges::any_of(processesSeen_, [&](const auto& entry) {
        const std::string_view executable = entry.second.executable;
        return executable.substr(executable.rfind('/') + 1) == processName;
    });
}

void LinuxApplications::lookAtProcesses() {
    const auto now = std::chrono::steady_clock::now();
    if (lookedAt_ && now - *lookedAt_ < lookHolds_) {
        return;
    }
    lookedAt_ = now;
    std::map<int, Process> seen;
    for (const int pid : processes_.ofThisPerson()) {
        std::string executable = processes_.executable(pid).value_or("");
        const auto known = processesSeen_.find(pid);
        if (known != processesSeen_.end() && known->second.executable == executable) {
            seen.insert(processesSeen_.extract(known));
        } else {
            seen.emplace(pid, Process{std::move(executable), {}});
        }
    }
    processesSeen_ = std::move(seen);
}

void LinuxApplications::findOutWhoTheyAre() {
    std::map<std::string_view, const AppRef*> byFile;
    const auto end = std::chrono::steady_clock::now() + longestFindingOut;
    // What matters now was mostly started lately.
    for (auto seen = processesSeen_.rbegin(); seen != processesSeen_.rend(); ++seen) {
        auto& [pid, process] = *seen;
        const bool isSameAsItsKind = LinuxAppIdentity::isToldByFile(process.executable);
        const auto kind = isSameAsItsKind ? byFile.find(process.executable) : byFile.end();
        if (!process.app && kind != byFile.end()) {
            process.app = *kind->second;
            process.app->pid = pid;
        } else if (!process.app && std::chrono::steady_clock::now() < end) {
            process.app = identity_.identify({.pid = pid});
        }
        if (process.app && isSameAsItsKind) {
            byFile.emplace(process.executable, &*process.app);
        }
    }
}

/// As the rules know them.
std::vector<std::string> LinuxApplications::categoriesOf(const AppRef& app,
                                                         const AppInspection& found) const {
    std::vector<std::string> identifiers = app.aliases;
    identifiers.insert(identifiers.begin(), app.bundleID.value_or(""));
    if (std::ranges::any_of(identifiers, WellKnownApps::isGameLauncher)) {
        return {std::string(categoryPrefix) + "game-store"};
    }
    if (std::ranges::any_of(found.paths, WellKnownApps::isLayerOfGames) ||
        std::ranges::any_of(identifiers, WellKnownApps::isGame)) {
        return {listedCategory("Game")};
    }
    std::vector<std::string> categories;
    for (const std::string& id : identifiers) {
        if (const DesktopEntry* entry = entries_.withID(id)) {
            std::ranges::transform(entry->categories, std::back_inserter(categories), listedCategory);
            break;
        }
    }
    return categories;
}

AppInspection LinuxApplications::inspect(const AppRef& app) {
    AppInspection inspection;
    if (const auto executable = processes_.executable(app.pid)) {
        inspection.paths.push_back(*executable);
        std::ranges::copy(wumble::AppBundle::appPaths(*executable), std::back_inserter(inspection.paths));
    }
    if (const auto program = processes_.windowsProgram(app.pid)) {
        inspection.paths.push_back(*program);
    }
    inspection.categories = categoriesOf(app, inspection);
    return inspection;
}

bool LinuxApplications::frontmostFillsAScreen() {
    // A window of which nothing is known, as those of some window managers themselves, is no program's.
    const auto window = windows_.frontWindow();
    if (!window || (window->pid == 0 && window->windowClass.empty())) {
        return false;
    }
    const auto rectangles = windows_.rectanglesOfProgram(*window);
    const auto displays = windows_.displays();
    return wumble::GameDetection::fillsADisplay(rectangles, displays);
}

} // namespace quietlark
