#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quietlark {

/// What an installed program says of itself.
struct DesktopEntry {
    std::string id;          ///< without ".desktop"; folders of the path joined by "-"
    std::string name;        ///< in the person's language
    std::string executable;  ///< the first word that is a program; a bare name or a path
    std::string windowClass; ///< may be empty
    std::vector<std::string> categories;
    bool isHidden = false; ///< not in menus: a helper, or a second entry of a program

    bool operator==(const DesktopEntry&) const = default;
};

/// The entries of the programs installed here.
class DesktopEntries {
public:
    /// `folders`: where "applications" folders lie, the person's own first.
    explicit DesktopEntries(std::vector<std::filesystem::path> folders) : folders_(std::move(folders)) {}

    /// The folders of this session, by its environment.
    static std::vector<std::filesystem::path> sessionFolders();

    /// Reads the folders when something was installed or taken away since. Every question does so first; the first time
    /// takes some milliseconds.
    void readIfChanged();

    /// Each gives nothing for an empty text. Identifiers and classes in any case; the pointer holds until the next
    /// call.
    const DesktopEntry* withID(std::string_view id);
    const DesktopEntry* withWindowClass(std::string_view windowClass);

    /// By the full path or else by the file's name. Entries in menus come first.
    const DesktopEntry* withExecutable(std::string_view path);

private:
    void readFolder(const std::filesystem::path& folder);
    void add(DesktopEntry entry);

    std::vector<std::filesystem::path> folders_;
    std::vector<std::filesystem::file_time_type> read_; ///< when each folder had changed last
    std::map<std::string, DesktopEntry, std::less<>> byID_;
    std::map<std::string, std::string, std::less<>> byClass_; ///< to identifiers
    std::map<std::string, std::string, std::less<>> byExecutable_;
};

} // namespace quietlark
