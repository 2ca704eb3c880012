#include "Quietlark/Platform/Linux/Proc/Processes.h"

#include "WumbleCore/Foundation/Text.h"
#include "WumbleCore/Storage/FileDescriptor.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace quietlark {

namespace {

constexpr std::size_t longestFile = 1
                                    << 16; ///< bytes; a command may be longer, and its beginning says enough

std::optional<int> processNumber(std::string_view name) {
    int number = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
    return error == std::errc() && end == name.data() + name.size() ? std::optional(number) : std::nullopt;
}

/// What stands between two marks; absent where one of them is missing.
std::optional<std::string> between(const std::string& text, std::string_view before, std::string_view after) {
    const std::size_t start = text.find(before);
    if (start == std::string::npos) {
        return std::nullopt;
    }
    const std::size_t from = start + before.size();
    const std::size_t end = text.find(after, from);
    return end == std::string::npos ? std::nullopt : std::optional(text.substr(from, end - from));
}

/// The names of groups write a dash within an identifier as "\\x2d".
std::string withoutEscapes(std::string text) {
    constexpr std::string_view dash = "\\x2d";
    for (std::size_t at = 0; (at = text.find(dash, at)) != std::string::npos; ++at) {
        text.replace(at, dash.size(), "-");
    }
    return text;
}

} // namespace

std::vector<int> Processes::ofThisPerson() const {
    std::vector<int> result;
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(root_.c_str()), closedir);
    while (const dirent* entry = folder ? readdir(folder.get()) : nullptr) {
        const auto pid = processNumber(entry->d_name);
        struct stat owner {};
        if (pid && fstatat(dirfd(folder.get()), entry->d_name, &owner, 0) == 0 && owner.st_uid == getuid()) {
            result.push_back(*pid);
        }
    }
    return result;
}

std::string Processes::pathOf(int pid, const char* file) const {
    return root_.native() + '/' + std::to_string(pid) + '/' + file;
}

std::optional<std::string> Processes::executable(int pid) const {
    std::array<char, PATH_MAX> path{};
    const ssize_t length = pid > 0 ? readlink(pathOf(pid, "exe").c_str(), path.data(), path.size()) : -1;
    if (length < 0) {
        return std::nullopt;
    }
    // A program that was replaced by an update while it runs.
    return std::string(wumble::withoutSuffix({path.data(), static_cast<std::size_t>(length)}, " (deleted)"));
}

std::string Processes::contents(int pid, const char* file) const {
    const wumble::FileDescriptor descriptor(open(pathOf(pid, file).c_str(), O_RDONLY | O_CLOEXEC));
    std::string text;
    std::array<char, 4096> buffer{};
    while (text.size() < longestFile) {
        const ssize_t count = read(descriptor.get(), buffer.data(), buffer.size());
        if (count <= 0) {
            break;
        }
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return text;
}

std::string Processes::name(int pid) const {
    return std::string(wumble::withoutSuffix(contents(pid, "comm"), "\n"));
}

std::vector<std::string> Processes::commandLine(int pid) const {
    const std::string words = contents(pid, "cmdline");
    std::vector<std::string> result;
    for (std::size_t begin = 0; begin < words.size();) {
        const std::size_t end = std::min(words.find('\0', begin), words.size());
        result.push_back(words.substr(begin, end - begin));
        begin = end + 1;
    }
    return result;
}

std::optional<int> Processes::parent(int pid) const {
    return processNumber(between(contents(pid, "status"), "\nPPid:\t", "\n").value_or(""));
}

std::optional<std::string> Processes::sandboxID(int pid) const {
    const std::string groups = contents(pid, "cgroup");
    if (const auto flatpak = between(groups, "app-flatpak-", "-")) {
        return withoutEscapes(*flatpak);
    }
    return between(groups, "/snap.", ".");
}

std::optional<std::string> Processes::windowsProgram(int pid) const {
    const std::filesystem::path loader(executable(pid).value_or(""));
    if (!loader.filename().string().starts_with("wine")) {
        return std::nullopt;
    }
    for (const std::string& word : commandLine(pid)) {
        if (!wumble::lowerCased(word).ends_with(".exe")) {
            continue;
        }
        const bool hasDrive = word[1] == ':';
        std::string path = hasDrive ? word.substr(2) : word;
        std::ranges::replace(path, '\\', '/');
        return path;
    }
    return std::nullopt;
}

} // namespace quietlark
