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

/// The program in a command such as "env LANG=C /usr/bin/name --flag %U".
std::string programOf(const std::string& command) {
    int count = 0;
    char** words = nullptr;
    if (g_shell_parse_argv(command.c_str(), &count, &words, nullptr) == FALSE) {
        return {};
    }
    std::string program;
    for (int index = 0; index < count && program.empty(); ++index) {
        const std::string word = words[index];
        if (word != "env" && word != "/usr/bin/env" && !wumble::contains(word, "=")) {
            program = word;
        }
    }
    g_strfreev(words);
    return program;
}

std::string fileName(std::string_view path) { return std::string(path.substr(path.rfind('/') + 1)); }

std::optional<DesktopEntry> readEntry(const std::filesystem::path& path, std::string id) {
    const KeyFile file(g_key_file_new());
    if (g_key_file_load_from_file(file.get(), path.c_str(), G_KEY_FILE_KEEP_TRANSLATIONS, nullptr) == FALSE ||
        value(file, "Type") != "Application") {
        return std::nullopt;
    }
    DesktopEntry entry;
    entry.id = std::move(id);
    entry.name = taken(g_key_file_get_locale_string(file.get(), group, "Name", nullptr, nullptr));
    entry.executable = programOf(value(file, "Exec"));
    entry.windowClass = value(file, "StartupWMClass");
    entry.categories = listOf(value(file, "Categories"));
    entry.isHidden = value(file, "NoDisplay") == "true" || value(file, "Hidden") == "true";
    return entry;
}

/// Programs that many others are started by say nothing of who was started.
bool isLauncherOfOthers(const std::string& program) {
    static constexpr std::array<std::string_view, 8> names{"flatpak", "snap", "sh",      "bash",
                                                           "steam",   "wine", "python3", "electron"};
    return std::ranges::find(names, program) != names.end();
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

const DesktopEntry* DesktopEntries::withID(std::string_view id) {
    readIfChanged();
    const auto found = byID_.find(lowerCased(wumble::withoutSuffix(id, ".desktop")));
    return found == byID_.end() ? nullptr : &found->second;
}

const DesktopEntry* DesktopEntries::withWindowClass(std::string_view windowClass) {
    readIfChanged();
    const auto found = byClass_.find(lowerCased(windowClass));
    return withID(found == byClass_.end() ? windowClass : std::string_view(found->second));
}

const DesktopEntry* DesktopEntries::withExecutable(std::string_view path) {
    readIfChanged();
    auto found = byExecutable_.find(path);
    if (found == byExecutable_.end()) {
        found = byExecutable_.find(fileName(path));
    }
    return found == byExecutable_.end() ? nullptr : withID(found->second);
}

void DesktopEntries::readIfChanged() {
    std::vector<std::filesystem::file_time_type> changed;
    for (const auto& folder : folders_) {
        std::error_code missing;
        const auto time = std::filesystem::last_write_time(folder / "applications", missing);
        changed.push_back(missing ? std::filesystem::file_time_type::min() : time);
    }
    if (changed == read_) {
        return;
    }
    read_ = std::move(changed);
    byID_.clear();
    byClass_.clear();
    byExecutable_.clear();
    for (const auto& folder : folders_) {
        readFolder(folder / "applications");
    }
}

void DesktopEntries::readFolder(const std::filesystem::path& folder) {
    std::error_code failed;
    using Iterator = std::filesystem::recursive_directory_iterator;
    for (Iterator file(folder, failed); !failed && file != Iterator(); file.increment(failed)) {
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
    for (const std::string& name : {added.executable, program}) {
        const auto [known, isFirst] = byExecutable_.emplace(name, key);
        if (!isFirst && byID_.at(known->second).isHidden && !added.isHidden) {
            known->second = key;
        }
    }
}

} // namespace quietlark
