#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// The processes of this machine, read from the system's process folder.
class Processes {
public:
    explicit Processes(std::filesystem::path root = "/proc") : root_(std::move(root)) {}

    /// Those of this person, in no order.
    std::vector<int> ofThisPerson() const;

    /// Absent for a process that is gone or belongs to somebody else. Inside a sandbox the path is the sandbox's.
    std::optional<std::string> executable(int pid) const;

    /// As the system keeps it: at most 15 characters. Empty for a process that is gone.
    std::string name(int pid) const;

    /// Its words; empty for a process that is gone.
    std::vector<std::string> commandLine(int pid) const;

    /// Who started it; absent for a process that is gone.
    std::optional<int> parent(int pid) const;

    /// The sandbox's identifier, where it runs in a flatpak or a snap.
    std::optional<std::string> sandboxID(int pid) const;

    /// The file that a Windows program was started from, where the process runs one: in the system's own form of
    /// path, whatever the letter of the drive.
    std::optional<std::string> windowsProgram(int pid) const;

private:
    std::string pathOf(int pid, const char* file) const;
    std::string contents(int pid, const char* file) const;

    std::filesystem::path root_;
};

} // namespace quietlark
