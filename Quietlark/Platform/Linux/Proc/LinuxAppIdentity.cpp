#include "Quietlark/Platform/Linux/Proc/LinuxAppIdentity.h"

#include "Quietlark/Platform/Linux/Proc/WellKnownApps.h"
#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quietlark {

namespace {

std::string fileName(std::string_view path) { return std::string(path.substr(path.rfind('/') + 1)); }

/// A script is known by its own name, not by that of the program that reads it.
bool isInterpreter(const std::string& program) {
    static constexpr std::array<std::string_view, 8> names{"python", "perl", "ruby", "node",
                                                           "java",   "gjs",  "bash", "electron"};
    return std::ranges::any_of(names, [&](std::string_view name) { return program.starts_with(name); });
}

std::string programName(const Processes& processes, int pid, const std::string& executable) {
    std::string program = fileName(executable);
    if (!isInterpreter(program)) {
        return program;
    }
    const auto words = processes.commandLine(pid);
    for (std::size_t index = 1; index < words.size(); ++index) {
        if (!words[index].empty() && words[index].front() != '-') {
            return fileName(words[index]);
        }
    }
    return program;
}

} // namespace

/// Everything that may say who a program is, the surest first.
struct LinuxAppIdentity::Clues {
    std::string appID;
    std::string sandboxID;
    std::string windowClass;
    std::string executable; ///< a path
    std::string program;    ///< its name, or that of the script that it runs
    std::string shown;      ///< what it calls itself
    std::string process;
};

LinuxAppIdentity::Clues LinuxAppIdentity::cluesOf(const AppHints& hints) const {
    Clues clues;
    clues.appID = wumble::withoutSuffix(hints.appID.value_or(""), ".desktop");
    clues.windowClass = hints.windowClass.value_or("");
    clues.shown = hints.name.value_or("");
    if (hints.pid > 0) {
        clues.sandboxID = processes_.sandboxID(hints.pid).value_or("");
        clues.executable = processes_.executable(hints.pid).value_or("");
        clues.program = programName(processes_, hints.pid, clues.executable);
        clues.process = processes_.name(hints.pid);
    }
    return clues;
}

const DesktopEntry* LinuxAppIdentity::entryOf(const Clues& clues) {
    if (const DesktopEntry* entry = entries_.withID(clues.appID)) {
        return entry;
    }
    if (const DesktopEntry* entry = entries_.withID(clues.sandboxID)) {
        return entry;
    }
    if (const DesktopEntry* entry = entries_.withWindowClass(clues.windowClass)) {
        return entry;
    }
    if (const DesktopEntry* entry = entries_.withExecutable(clues.executable)) {
        return entry;
    }
    return entries_.withExecutable(clues.program);
}

AppRef LinuxAppIdentity::identify(const AppHints& hints) {
    const Clues clues = cluesOf(hints);
    const DesktopEntry* entry = entryOf(clues);
    const std::string entryID = entry == nullptr ? "" : entry->id;

    AppRef app;
    app.pid = hints.pid;
    for (const std::string& name : {entry == nullptr ? std::string() : entry->name, clues.shown,
                                    clues.windowClass, clues.process, clues.program, clues.appID}) {
        if (app.name.empty()) {
            app.name = name;
        }
    }
    for (const std::string& id : {entryID, clues.appID, clues.sandboxID, clues.program, clues.windowClass}) {
        if (!app.bundleID) {
            app.bundleID = WellKnownApps::listedID(id);
        }
        if (!id.empty()) {
            app.aliases.push_back(id);
        }
    }
    if (!app.bundleID && !app.aliases.empty()) {
        app.bundleID = app.aliases.front();
    }
    if (!app.name.empty()) {
        app.aliases.push_back(app.name);
    }
    std::vector<std::string> others;
    for (const std::string& alias : app.aliases) {
        if (alias != app.bundleID && std::ranges::find(others, alias) == others.end()) {
            others.push_back(alias);
        }
    }
    app.aliases = std::move(others);
    return app;
}

} // namespace quietlark
