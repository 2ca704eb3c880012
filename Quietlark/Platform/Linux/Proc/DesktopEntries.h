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
    std::string id;         ///< without ".desktop"; folders of the path joined by "-"
    std::string name;       ///< in the person's language
    std::string executable; ///< the first word that is a program; a bare name or a path
    int arguments =
        0; ///< words that follow it, but for files to open: an entry with some is for a part of it
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

    /// Reads the folders when something was installed or taken away since, which takes some milliseconds.
    void readIfChanged();

    /// By what was read last. Each gives nothing for an empty text. Identifiers and classes in any case; the pointer
    /// holds until the next reading.
    const DesktopEntry* withID(std::string_view id) const;
    const DesktopEntry* withWindowClass(std::string_view windowClass) const;

    /// By the full path or else by the file's name. Entries in menus and for the program as a whole come first.
    const DesktopEntry* withExecutable(std::string_view path) const;

    /// Of the program that was installed into a folder of its own in which this path lies.
    const DesktopEntry* withInstallationOf(std::string_view path) const;

private:
    using Index = std::map<std::string, std::string, std::less<>>;

    void readFolder(const std::filesystem::path& folder);
    void add(DesktopEntry entry);
    void noteInstallation(const DesktopEntry& entry, const std::string& key);
    void note(Index& index, const std::string& name, const std::string& key);
    bool hasChanged() const;

    std::vector<std::filesystem::path> folders_;
    /// When each folder had changed last, those within them included.
    std::map<std::filesystem::path, std::filesystem::file_time_type> read_;
    std::map<std::string, DesktopEntry, std::less<>> byID_;
    Index byClass_; ///< to identifiers
    Index byExecutable_;
    Index byInstallation_;
};

} // namespace quietlark
