#include "Quietlark/Platform/Linux/Proc/LinuxApplications.h"

#include "Quietlark/Platform/Linux/Proc/WellKnownApps.h"
#include "WumbleCore/Activity/AppBundle.h"
#include "WumbleCore/Activity/GameDetection.h"
#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

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
    std::map<int, Known> seen;
    std::set<std::pair<std::string, std::string>> listed;
    std::vector<AppRef> apps;
    for (const int pid : processes_.ofThisPerson()) {
        std::string executable = processes_.executable(pid).value_or("");
        const auto known = known_.find(pid);
        const bool isTheSame = known != known_.end() && known->second.executable == executable;
        AppRef app = isTheSame ? known->second.app : identity_.identify({.pid = pid});
        if (app.bundleID && listed.emplace(*app.bundleID, app.name).second) {
            apps.push_back(app);
        }
        seen.emplace(pid, Known{std::move(executable), std::move(app)});
    }
    known_ = std::move(seen);
    return apps;
}

bool LinuxApplications::isProcessRunning(std::string_view processName) {
    const auto pids = processes_.ofThisPerson();
    return std::ranges::any_of(pids, [&](int pid) { return processes_.name(pid) == processName; });
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
