#include "Quietlark/Platform/Linux/Proc/LinuxAppIdentity.h"

#include "Quietlark/Platform/Linux/Proc/ReadableText.h"
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

/// The first word that is no option; after some options comes what belongs to them.
std::string scriptOf(const std::vector<std::string>& words) {
    static constexpr std::array<std::string_view, 3> withValue{"-cp", "-classpath", "-W"};
    for (std::size_t index = 1; index < words.size(); ++index) {
        const std::string& word = words[index];
        if (word == "-c" || word == "-e") {
            return {};
        }
        if (std::ranges::find(withValue, word) != withValue.end()) {
            ++index;
        } else if (!word.empty() && word.front() != '-') {
            return word;
        }
    }
    return {};
}

/// Tools that record for a script rather than for themselves.
bool recordsForOthers(const std::string& program) {
    static constexpr std::array<std::string_view, 7> names{"parec",   "pacat", "pw-record", "pw-cat",
                                                           "arecord", "rec",   "sox"};
    return std::ranges::find(names, program) != names.end();
}

/// Steam calls the windows of all its Windows games by a number.
bool saysNothingOfAName(std::string_view windowClass) { return windowClass.starts_with("steam_app_"); }

/// The folder that a library of games keeps this one in bears its title.
std::string titleInLibrary(const std::string& path) {
    constexpr std::string_view library = "/steamapps/common/";
    const std::size_t found = wumble::lowerCased(path).find(library);
    if (found == std::string::npos) {
        return {};
    }
    const std::size_t begin = found + library.size();
    const std::string title = path.substr(begin, path.find('/', begin) - begin);
    const bool isLayer = title.starts_with("Proton") || title.starts_with("SteamLinuxRuntime");
    return isLayer ? "" : title;
}

/// Browsers' engines name their recordings so.
std::string withoutDirection(const std::string& streamName) {
    return std::string(wumble::withoutSuffix(streamName, " input"));
}

void addOnce(std::vector<std::string>& texts, const std::string& text) {
    if (!text.empty() && std::ranges::find(texts, text) == texts.end()) {
        texts.push_back(text);
    }
}

std::string firstOf(std::initializer_list<std::string> texts) {
    const auto* const found = std::ranges::find_if(texts, [](const auto& text) { return !text.empty(); });
    return found == texts.end() ? "" : *found;
}

} // namespace

/// Everything that may say who a program is, the surest first.
struct LinuxAppIdentity::Clues {
    std::string appID;
    std::string sandboxID;
    std::string windowClass;
    std::string executable; ///< a path, or that of the script
    std::string program;    ///< its name, or that of the script or the Windows program that it runs
    std::string shown;      ///< what it calls itself
    std::string title;      ///< of a game, by the place of it
};

LinuxAppIdentity::Clues LinuxAppIdentity::cluesOf(const AppHints& hints) const {
    Clues clues;
    const std::string appID = readableText(wumble::withoutSuffix(hints.appID.value_or(""), ".desktop"));
    clues.windowClass = readableText(hints.windowClass.value_or(""));
    clues.shown = withoutDirection(readableText(hints.name.value_or("")));
    if (isItsProcess(hints)) {
        const int pid = whoRuns(hints.pid);
        clues.shown = pid == hints.pid ? clues.shown : "";
        lookAtProcess(pid, clues);
    } else {
        clues.program = readableText(hints.binary.value_or(""));
    }
    // Some name the file that they were started from.
    if (appID.starts_with('/')) {
        clues.executable = clues.executable.empty() ? appID : clues.executable;
        clues.program = clues.program.empty() ? fileName(appID) : clues.program;
        clues.shown = clues.shown == appID ? fileName(appID) : clues.shown;
    } else {
        clues.appID = appID;
    }
    return clues;
}

bool LinuxAppIdentity::isItsProcess(const AppHints& hints) const {
    if (hints.pid <= 0 || !hints.binary) {
        return hints.pid > 0;
    }
    const std::string executable = processes_.executable(hints.pid).value_or("");
    return fileName(executable) == wumble::withoutSuffix(*hints.binary, " (deleted)");
}

int LinuxAppIdentity::whoRuns(int pid) const {
    if (!recordsForOthers(fileName(processes_.executable(pid).value_or("")))) {
        return pid;
    }
    const int parent = processes_.parent(pid).value_or(0);
    const bool isScript = isInterpreter(fileName(processes_.executable(parent).value_or(""))) &&
                          !scriptOf(processes_.commandLine(parent)).empty();
    return isScript ? parent : pid;
}

void LinuxAppIdentity::lookAtProcess(int pid, Clues& clues) const {
    const std::string sandboxID = readableText(processes_.sandboxID(pid).value_or(""));
    // What a launcher starts runs in the launcher's own sandbox.
    clues.sandboxID = WellKnownApps::isGameLauncher(sandboxID) ? "" : sandboxID;
    const std::string executable = processes_.executable(pid).value_or("");
    const std::string file = fileName(executable);
    if (isInterpreter(file)) {
        const std::string script = scriptOf(processes_.commandLine(pid));
        clues.program = readableText(script.empty() ? file : fileName(script));
        clues.executable = script.starts_with('/') ? script : "";
        return;
    }
    clues.executable = executable;
    const std::string windowsProgram = processes_.windowsProgram(pid).value_or("");
    clues.program = readableText(firstOf({fileName(windowsProgram), file, processes_.name(pid)}));
    clues.title = readableText(firstOf({titleInLibrary(executable), titleInLibrary(windowsProgram)}));
}

const DesktopEntry* LinuxAppIdentity::entryOf(const Clues& clues) const {
    struct Way {
        const DesktopEntry* (DesktopEntries::*look)(std::string_view) const;
        std::string Clues::*clue;
    };
    static constexpr std::array<Way, 9> ways{{
        {&DesktopEntries::withID, &Clues::appID},
        {&DesktopEntries::withID, &Clues::sandboxID},
        {&DesktopEntries::withExecutable, &Clues::sandboxID},
        {&DesktopEntries::withWindowClass, &Clues::windowClass},
        {&DesktopEntries::withExecutable, &Clues::executable},
        {&DesktopEntries::withExecutable, &Clues::program},
        {&DesktopEntries::withWindowClass, &Clues::appID},
        {&DesktopEntries::withExecutable, &Clues::appID},
        {&DesktopEntries::withInstallationOf, &Clues::executable},
    }};
    for (const Way& way : ways) {
        if (const DesktopEntry* entry = (entries_.*way.look)(clues.*way.clue)) {
            return entry;
        }
    }
    return nullptr;
}

bool LinuxAppIdentity::isToldByFile(std::string_view executable) {
    const std::string file = fileName(executable);
    return !file.empty() && !isInterpreter(file) && !file.starts_with("wine") &&
           !executable.starts_with("/app/");
}

AppRef LinuxAppIdentity::identify(const AppHints& hints) {
    entries_.readIfChanged();
    const Clues clues = cluesOf(hints);
    const DesktopEntry* entry = entryOf(clues);
    const std::string entryID = entry == nullptr ? "" : entry->id;

    AppRef app;
    app.pid = isItsProcess(hints) ? hints.pid : 0;
    app.name =
        firstOf({entry == nullptr ? "" : readableText(entry->name), clues.title, clues.shown,
                 saysNothingOfAName(clues.windowClass) ? "" : clues.windowClass, clues.program, clues.appID});
    std::vector<std::string> known;
    for (const std::string& id : {entryID, clues.appID, clues.sandboxID, clues.program, clues.windowClass}) {
        if (!app.bundleID) {
            app.bundleID = WellKnownApps::listedID(id);
        }
        addOnce(known, id);
    }
    if (!app.bundleID && !known.empty()) {
        app.bundleID = known.front();
    }
    addOnce(known, app.name);
    addOnce(known, clues.shown);
    std::erase(known, app.bundleID.value_or(""));
    app.aliases = std::move(known);
    return app;
}

} // namespace quietlark
