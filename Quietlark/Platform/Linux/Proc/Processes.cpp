#include "Quietlark/Platform/Linux/Proc/Processes.h"

#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

namespace quietlark {

namespace {

std::optional<int> processNumber(const std::string& name) {
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
    std::error_code failed;
    for (auto entry = std::filesystem::directory_iterator(root_, failed);
         !failed && entry != std::filesystem::directory_iterator(); entry.increment(failed)) {
        const auto pid = processNumber(entry->path().filename().string());
        struct stat owner {};
        if (pid && stat(entry->path().c_str(), &owner) == 0 && owner.st_uid == getuid()) {
            result.push_back(*pid);
        }
    }
    return result;
}

std::optional<std::string> Processes::executable(int pid) const {
    std::error_code failed;
    const auto path = std::filesystem::read_symlink(root_ / std::to_string(pid) / "exe", failed);
    if (failed || pid <= 0) {
        return std::nullopt;
    }
    // A program that was replaced by an update while it runs.
    return std::string(wumble::withoutSuffix(path.string(), " (deleted)"));
}

std::string Processes::contents(int pid, const char* file) const {
    std::ifstream stream(root_ / std::to_string(pid) / file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
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
