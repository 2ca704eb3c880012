#include "Quietlark/Platform/Linux/Proc/DesktopEntries.h"

#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <glib.h>
#include <memory>
#include <sstream>

namespace quietlark {

using wumble::lowerCased;

namespace {

constexpr const char* group = G_KEY_FILE_DESKTOP_GROUP;
constexpr std::uintmax_t largestEntry = 1 << 20; ///< bytes

struct KeyFileDeleter {
    void operator()(GKeyFile* file) const { g_key_file_free(file); }
};
using KeyFile = std::unique_ptr<GKeyFile, KeyFileDeleter>;

std::string taken(char* text) {
    std::string result = text == nullptr ? "" : text;
    g_free(text);
    return result;
}

std::string value(const KeyFile& file, const char* key) {
    return taken(g_key_file_get_string(file.get(), group, key, nullptr));
}

std::vector<std::string> listOf(const std::string& text) {
    std::vector<std::string> result;
    std::istringstream words(text);
    for (std::string word; std::getline(words, word, ';');) {
        if (!word.empty()) {
            result.push_back(word);
        }
    }
    return result;
}

struct Program {
    std::string path;
    int arguments = 0;
};

/// The program in a command such as "env LANG=C /usr/bin/name --flag %U", which has one argument.
Program programOf(const std::string& command) {
    int count = 0;
    char** words = nullptr;
    if (g_shell_parse_argv(command.c_str(), &count, &words, nullptr) == FALSE) {
        return {};
    }
    Program program;
    for (int index = 0; index < count; ++index) {
        const std::string word = words[index];
        if (!program.path.empty()) {
            program.arguments += word.starts_with("%") ? 0 : 1;
        } else if (word != "env" && word != "/usr/bin/env" && !wumble::contains(word, "=")) {
            program.path = word;
        }
    }
    g_strfreev(words);
    return program;
}

std::string fileName(std::string_view path) { return std::string(path.substr(path.rfind('/') + 1)); }

/// A game that Steam starts by its number has a window class with that number.
std::string steamClassOf(const std::string& command) {
    constexpr std::string_view order = "steam://rungameid/";
    const std::size_t found = command.find(order);
    if (found == std::string::npos) {
        return {};
    }
    const std::size_t begin = found + order.size();
    const std::size_t end = std::min(command.find_first_not_of("0123456789", begin), command.size());
    return "steam_app_" + command.substr(begin, end - begin);
}

std::optional<DesktopEntry> readEntry(const std::filesystem::path& path, std::string id) {
    std::error_code failed;
    // Anything else may never come to an end.
    const bool isFile = std::filesystem::is_regular_file(path, failed);
    if (!isFile || std::filesystem::file_size(path, failed) > largestEntry) {
        return std::nullopt;
    }
    const KeyFile file(g_key_file_new());
    if (g_key_file_load_from_file(file.get(), path.c_str(), G_KEY_FILE_KEEP_TRANSLATIONS, nullptr) == FALSE ||
        value(file, "Type") != "Application") {
        return std::nullopt;
    }
    DesktopEntry entry;
    entry.id = std::move(id);
    entry.name = taken(g_key_file_get_locale_string(file.get(), group, "Name", nullptr, nullptr));
    const Program program = programOf(value(file, "Exec"));
    entry.executable = program.path;
    entry.arguments = program.arguments;
    const std::string steamClass = steamClassOf(value(file, "Exec"));
    entry.windowClass = steamClass.empty() ? value(file, "StartupWMClass") : steamClass;
    entry.categories = listOf(value(file, "Categories"));
    entry.isHidden = value(file, "NoDisplay") == "true" || value(file, "Hidden") == "true";
    return entry;
}

/// The earliest of times for a folder that isn't there.
std::filesystem::file_time_type lastChange(const std::filesystem::path& folder) {
    std::error_code missing;
    const auto time = std::filesystem::last_write_time(folder, missing);
    return missing ? std::filesystem::file_time_type::min() : time;
}

/// Programs that many others are started by say nothing of who was started.
bool isLauncherOfOthers(const std::string& program) {
    static constexpr std::array<std::string_view, 17> names{
        "flatpak", "snap",     "sh",         "bash",      "steam",       "wine",
        "java",    "gjs",      "xdg-open",   "pkexec",    "gamemoderun", "sudo",
        "bwrap",   "firejail", "gtk-launch", "prime-run", "mangohud"};
    static constexpr std::array<std::string_view, 5> versioned{"python", "electron", "perl", "node", "ruby"};
    return std::ranges::find(names, program) != names.end() ||
           std::ranges::any_of(versioned, [&](std::string_view name) { return program.starts_with(name); });
}

/// Where a command of one word is found.
std::filesystem::path inSearchPath(const std::string& program) {
    const char* variable = std::getenv("PATH");
    std::istringstream folders(variable == nullptr ? "" : variable);
    std::error_code failed;
    for (std::string folder; std::getline(folders, folder, ':');) {
        auto path = std::filesystem::path(folder) / program;
        if (path.is_absolute() && std::filesystem::exists(path, failed)) {
            return path;
        }
    }
    return {};
}

/// The folder that holds this program and nothing of others; empty where it lies among many.
std::filesystem::path ownFolder(const std::filesystem::path& executable) {
    const auto folder = executable.parent_path();
    const auto root = folder.filename() == "bin" ? folder.parent_path() : folder;
    static constexpr std::array<std::string_view, 12> shared{
        "bin", "sbin", "games", "lib", "lib64", "libexec", "share", "local", "usr", "opt", ".local", "snap"};
    const bool isShared = std::ranges::find(shared, root.filename().string()) != shared.end();
    const bool isArchitecture = wumble::contains(root.filename().string(), "-linux-");
    // Right in one's home lie folders such as "Downloads".
    const auto fewestParts = root.string().starts_with("/home/") ? 5 : 3;
    const bool isDeep = std::distance(root.begin(), root.end()) >= fewestParts;
    return isShared || isArchitecture || !isDeep ? std::filesystem::path() : root;
}

} // namespace

std::vector<std::filesystem::path> DesktopEntries::sessionFolders() {
    const auto variable = [](const char* name, const std::string& otherwise) {
        const char* text = std::getenv(name);
        return text == nullptr || *text == '\0' ? otherwise : std::string(text);
    };
    std::vector<std::filesystem::path> folders{
        variable("XDG_DATA_HOME", variable("HOME", "/") + "/.local/share")};
    std::istringstream shared(variable("XDG_DATA_DIRS", "/usr/local/share:/usr/share"));
    for (std::string folder; std::getline(shared, folder, ':');) {
        folders.emplace_back(folder);
    }
    return folders;
}

const DesktopEntry* DesktopEntries::withID(std::string_view id) const {
    const auto found = byID_.find(lowerCased(wumble::withoutSuffix(id, ".desktop")));
    return found == byID_.end() ? nullptr : &found->second;
}

const DesktopEntry* DesktopEntries::withWindowClass(std::string_view windowClass) const {
    const auto found = byClass_.find(lowerCased(windowClass));
    return withID(found == byClass_.end() ? windowClass : std::string_view(found->second));
}

const DesktopEntry* DesktopEntries::withExecutable(std::string_view path) const {
    auto found = byExecutable_.find(path);
    if (found == byExecutable_.end()) {
        found = byExecutable_.find(fileName(path));
    }
    return found == byExecutable_.end() ? nullptr : withID(found->second);
}

const DesktopEntry* DesktopEntries::withInstallationOf(std::string_view path) const {
    for (std::filesystem::path folder = std::filesystem::path(path).parent_path(); folder.has_relative_path();
         folder = folder.parent_path()) {
        if (const auto found = byInstallation_.find(folder.native()); found != byInstallation_.end()) {
            return withID(found->second);
        }
    }
    return nullptr;
}

bool DesktopEntries::hasChanged() const {
    return read_.empty() || std::ranges::any_of(read_, [](const auto& folder) {
               return lastChange(folder.first) != folder.second;
           });
}

void DesktopEntries::readIfChanged() {
    if (!hasChanged()) {
        return;
    }
    read_.clear();
    byID_.clear();
    byClass_.clear();
    byExecutable_.clear();
    byInstallation_.clear();
    for (const auto& folder : folders_) {
        readFolder(folder / "applications");
    }
}

void DesktopEntries::readFolder(const std::filesystem::path& folder) {
    read_[folder] = lastChange(folder);
    std::error_code failed;
    using Iterator = std::filesystem::recursive_directory_iterator;
    const auto options = std::filesystem::directory_options::skip_permission_denied;
    for (Iterator file(folder, options, failed); !failed && file != Iterator(); file.increment(failed)) {
        std::error_code gone;
        if (file->is_directory(gone)) {
            read_[file->path()] = lastChange(file->path());
        }
        if (file->path().extension() != ".desktop") {
            continue;
        }
        std::string id = file->path().lexically_relative(folder).replace_extension().string();
        std::ranges::replace(id, '/', '-');
        if (auto entry = readEntry(file->path(), std::move(id))) {
            add(*std::move(entry));
        }
    }
}

void DesktopEntries::add(DesktopEntry entry) {
    const std::string key = lowerCased(entry.id);
    const auto [place, isNew] = byID_.emplace(key, std::move(entry));
    // The person's own folder comes first, and its entry stands in for the system's.
    if (!isNew) {
        return;
    }
    const DesktopEntry& added = place->second;
    if (!added.windowClass.empty()) {
        byClass_.emplace(lowerCased(added.windowClass), key);
    }
    const std::string program = fileName(added.executable);
    if (program.empty() || isLauncherOfOthers(program)) {
        return;
    }
    note(byExecutable_, added.executable, key);
    note(byExecutable_, program, key);
    noteInstallation(added, key);
}

/// A link among all commands often leads to the folder where everything of the program lies.
void DesktopEntries::noteInstallation(const DesktopEntry& entry, const std::string& key) {
    const bool isPath = entry.executable.starts_with('/');
    std::error_code failed;
    const auto file = std::filesystem::canonical(
        isPath ? std::filesystem::path(entry.executable) : inSearchPath(entry.executable), failed);
    if (const auto folder = failed ? std::filesystem::path() : ownFolder(file); !folder.empty()) {
        note(byInstallation_, folder.string(), key);
    }
}

/// The first entry keeps the name, but for one that is rather the program's own.
void DesktopEntries::note(Index& index, const std::string& name, const std::string& key) {
    const auto [known, isFirst] = index.emplace(name, key);
    const auto remoteness = [](const DesktopEntry& entry) {
        return std::pair(entry.isHidden, entry.arguments);
    };
    if (!isFirst && remoteness(byID_.at(key)) < remoteness(byID_.at(known->second))) {
        known->second = key;
    }
}

} // namespace quietlark
