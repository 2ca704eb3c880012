#include "Quietlark/Platform/Linux/Proc/Subprocess.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace quietlark {

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto longestFarewell = 500ms;

int spawn(std::vector<std::string> command, int output) {
    std::vector<char*> words;
    std::ranges::transform(command, std::back_inserter(words), [](std::string& word) { return word.data(); });
    words.push_back(nullptr);

    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);

    pid_t pid = -1;
    const int failure = posix_spawnp(&pid, words.front(), &files, &attributes, words.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return failure == 0 ? pid : -1;
}

/// Whether it has ended by the deadline.
bool waitUntil(int pid, int& status, Clock::time_point deadline) {
    while (waitpid(pid, &status, WNOHANG) == 0) {
        if (Clock::now() >= deadline) {
            return false;
        }
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

} // namespace

Subprocess::Subprocess(const std::vector<std::string>& command) {
    std::array<int, 2> ends{};
    if (command.empty() || pipe2(ends.data(), O_CLOEXEC) != 0) {
        return;
    }
    pid_ = spawn(command, ends[1]);
    output_ = ends[0];
    close(ends[1]);
}

Subprocess::Subprocess(Subprocess&& other) noexcept
    : pid_(std::exchange(other.pid_, -1)), output_(std::exchange(other.output_, -1)) {}

Subprocess::~Subprocess() {
    end();
    if (output_ >= 0) {
        close(output_);
    }
}

bool Subprocess::read(const std::function<void(std::string bytes)>& received, int stop,
                      double seconds) const {
    const auto deadline = Clock::now() + std::chrono::milliseconds(static_cast<long>(seconds * 1000));
    std::array<char, 4096> buffer{};
    for (;;) {
        std::array<pollfd, 2> awaited{{{output_, POLLIN, 0}, {stop, POLLIN, 0}}};
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        const int timeout = seconds < 0 ? -1 : static_cast<int>(std::max<long>(left, 0));
        const int count = poll(awaited.data(), awaited.size(), timeout);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0 || awaited[1].revents != 0) {
            return false;
        }
        const ssize_t bytes = ::read(output_, buffer.data(), buffer.size());
        if (bytes <= 0) {
            return true;
        }
        received(std::string(buffer.data(), static_cast<std::size_t>(bytes)));
    }
}

bool Subprocess::endsWell() {
    int status = 0;
    if (pid_ <= 0 || !waitUntil(pid_, status, Clock::now() + longestFarewell)) {
        end();
        return false;
    }
    pid_ = -1;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void Subprocess::end() {
    if (pid_ <= 0) {
        return;
    }
    int status = 0;
    kill(pid_, SIGTERM);
    if (!waitUntil(pid_, status, Clock::now() + longestFarewell)) {
        kill(pid_, SIGKILL);
        waitpid(pid_, &status, 0);
    }
    pid_ = -1;
}

} // namespace quietlark
