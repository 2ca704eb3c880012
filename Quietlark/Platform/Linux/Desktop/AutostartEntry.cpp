#include "Quietlark/Platform/Linux/Desktop/AutostartEntry.h"

#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <string_view>
#include <utility>

namespace quietlark {

namespace {

constexpr const char* notInstalled = "Open at login only works for an installed copy of Quietlark.";
constexpr const char* notWritten =
    "Quietlark couldn't change what opens at login. Is your settings folder full or locked?";

/// A path as one word of an entry's command, whatever characters it holds.
std::string quotedWord(const std::string& path) {
    std::string word = "\"";
    for (const char letter : path) {
        switch (letter) {
        case '"':
        case '`':
        case '$':
            // One backslash for the command, and itself escaped in the file.
            word += "\\\\";
            word += letter;
            break;
        case '\\': word += "\\\\\\\\"; break;
        case '%': word += "%%"; break;
        default: word += letter;
        }
    }
    return word + "\"";
}

bool isBelow(const std::filesystem::path& path, const std::filesystem::path& folder) {
    const auto [end, rest] = std::ranges::mismatch(folder, path);
    return end == folder.end();
}

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

} // namespace

AutostartEntry::AutostartEntry(const std::filesystem::path& folder, std::filesystem::path program,
                               std::filesystem::path home)
    : file_(folder / "com.fernwick.quietlark.desktop"), program_(std::move(program)), home_(std::move(home)) {
}

std::unique_ptr<LoginItem> AutostartEntry::ofThisSession() {
    const std::filesystem::path home = environment("HOME");
    const std::filesystem::path configured = environment("XDG_CONFIG_HOME");
    std::error_code unknown;
    return std::make_unique<AutostartEntry>((configured.is_absolute() ? configured : home / ".config") /
                                                "autostart",
                                            std::filesystem::read_symlink("/proc/self/exe", unknown), home);
}

bool AutostartEntry::isEnabled() const {
    std::ifstream lines(file_);
    if (!lines) {
        return false;
    }
    // Desktops switch an entry off in the file rather than take it away.
    static constexpr std::array<std::string_view, 2> off{"Hidden=true", "X-GNOME-Autostart-enabled=false"};
    for (std::string line; std::getline(lines, line);) {
        if (std::ranges::find(off, wumble::trimmed(line)) != off.end()) {
            return false;
        }
    }
    return true;
}

bool AutostartEntry::canRegister() const {
    const std::array<std::filesystem::path, 4> installed{"/usr", "/opt", "/app", home_ / ".local"};
    return std::ranges::any_of(installed, [&](const auto& folder) { return isBelow(program_, folder); });
}

std::string AutostartEntry::contents() const {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Quietlark\n"
           "Comment=Breaks at the right moment\n"
           "Exec=" +
           quotedWord(program_.string()) +
           "\n"
           "Icon=com.fernwick.quietlark\n"
           "Terminal=false\n"
           "X-GNOME-Autostart-enabled=true\n";
}

std::optional<std::string> AutostartEntry::set(bool on) {
    std::error_code failed;
    if (!on) {
        std::filesystem::remove(file_, failed);
        return failed ? std::optional<std::string>(notWritten) : std::nullopt;
    }
    if (!canRegister()) {
        return notInstalled;
    }
    std::filesystem::create_directories(file_.parent_path(), failed);
    std::ofstream stream(file_, std::ios::trunc);
    stream << contents() << std::flush;
    if (stream) {
        return std::nullopt;
    }
    // Half an entry starts nothing, and would look like a whole one.
    std::filesystem::remove(file_, failed);
    return notWritten;
}

} // namespace quietlark
