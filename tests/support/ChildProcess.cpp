#include "tests/support/ChildProcess.h"

#include <array>
#include <cerrno>
#include <cstring>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace wumble::test {

namespace {

constexpr auto impossible = "impossible: ";

std::string impossibleBecause(const char* call) {
    return impossible + std::string(call) + ": " + std::strerror(errno);
}

std::string readToEnd(int descriptor) {
    std::string text;
    std::array<char, 1024> buffer{};
    for (ssize_t count = 0; (count = ::read(descriptor, buffer.data(), buffer.size())) > 0;) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return text;
}

} // namespace

ChildResult inChild(const std::function<std::string()>& check) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
        return {impossibleBecause("pipe"), true};
    }
    const pid_t child = ::fork();
    if (child == 0) {
        const auto complaint = check();
        const auto written = ::write(ends[1], complaint.data(), complaint.size());
        ::_exit(written == static_cast<ssize_t>(complaint.size()) ? 0 : 1);
    }
    ::close(ends[1]);
    std::string complaint = readToEnd(ends[0]);
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        complaint += " the child ended with status " + std::to_string(status);
    }
    return {complaint, complaint.starts_with(impossible)};
}

std::string mountSmallDisk(const std::string& folder, const std::string& size) {
    const int namespaces = ::geteuid() == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER;
    if (::unshare(namespaces) != 0) {
        return impossibleBecause("unshare");
    }
    if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        return impossibleBecause("private mounts");
    }
    if (::mount("tmpfs", folder.c_str(), "tmpfs", 0, ("size=" + size).c_str()) != 0) {
        return impossibleBecause("tmpfs");
    }
    return {};
}

std::string makeDiskReadOnly(const std::string& folder) {
    const bool isDone = ::mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    return isDone ? "" : impossibleBecause("remount");
}

} // namespace wumble::test
