#include "tests/lab/LabProcess.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace quietlark::lab {

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

Clock::time_point deadlineIn(double seconds) {
    return Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    for (std::string& text : texts) {
        result.push_back(text.data());
    }
    result.push_back(nullptr);
    return result;
}

[[noreturn]] void become(std::vector<std::string> command, const Environment& environment, int input,
                         int output, const std::string& log, const std::vector<int>& keepOpen) {
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    const int errors =
        open(log.empty() ? "/dev/null" : log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    dup2(errors, STDERR_FILENO);
    for (const int descriptor : keepOpen) {
        fcntl(descriptor, F_SETFD, 0);
    }
    for (const auto& [name, value] : environment) {
        value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
    }
    signal(SIGPIPE, SIG_DFL);
    execvp(command.front().c_str(), pointers(command).data());
    _exit(127);
}

} // namespace

LabProcess::LabProcess(const std::vector<std::string>& command, const Environment& environment,
                       const std::string& logFolder, const std::vector<int>& keepOpen) {
    int output[2];
    int input[2];
    if (pipe2(output, O_CLOEXEC) != 0 || pipe2(input, O_CLOEXEC) != 0) {
        return;
    }
    const std::string program = command.front().substr(command.front().rfind('/') + 1);
    const std::string log = logFolder.empty() ? "" : logFolder + "/" + program + ".log";
    pid_ = fork();
    if (pid_ == 0) {
        become(command, environment, input[0], output[1], log, keepOpen);
    }
    close(output[1]);
    close(input[0]);
    output_ = output[0];
    input_ = input[1];
}

LabProcess::~LabProcess() {
    end();
    close(output_);
    close(input_);
}

std::optional<std::string> LabProcess::readLine(double seconds) {
    const auto deadline = deadlineIn(seconds);
    for (;;) {
        if (const std::size_t newline = read_.find('\n'); newline != std::string::npos) {
            std::string line = read_.substr(0, newline);
            read_.erase(0, newline + 1);
            return line;
        }
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd waiting{output_, POLLIN, 0};
        if (left <= 0 || poll(&waiting, 1, static_cast<int>(left)) <= 0) {
            return std::nullopt;
        }
        char buffer[4096];
        const ssize_t count = read(output_, buffer, sizeof buffer);
        if (count <= 0) {
            return std::nullopt;
        }
        read_.append(buffer, static_cast<std::size_t>(count));
    }
}

std::string LabProcess::readAll(double seconds) {
    std::string all;
    while (const auto line = readLine(seconds)) {
        all += *line + "\n";
    }
    return all + std::exchange(read_, {});
}

void LabProcess::writeLine(const std::string& line) {
    const std::string text = line + "\n";
    [[maybe_unused]] const ssize_t written = write(input_, text.data(), text.size());
}

void LabProcess::signal(int number) const {
    if (pid_ > 0 && !status_) {
        kill(pid_, number);
    }
}

std::optional<int> LabProcess::reap(bool hang) {
    if (pid_ > 0 && !status_) {
        int status = 0;
        if (waitpid(pid_, &status, hang ? 0 : WNOHANG) == pid_) {
            status_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        }
    }
    return status_;
}

std::optional<int> LabProcess::wait(double seconds) {
    const auto deadline = deadlineIn(seconds);
    while (!reap(false) && Clock::now() < deadline) {
        std::this_thread::sleep_for(5ms);
    }
    return status_;
}

void LabProcess::end() {
    if (pid_ <= 0 || reap(false)) {
        return;
    }
    kill(-pid_, SIGCONT);
    kill(-pid_, SIGTERM);
    if (!wait(2)) {
        kill(-pid_, SIGKILL);
        reap(true);
    }
    kill(-pid_, SIGKILL);
}

bool isInstalled(const std::string& program) {
    const char* path = std::getenv("PATH");
    std::string rest = path == nullptr ? "" : path;
    rest += ":/usr/lib/xorg:/usr/libexec:";
    while (!rest.empty()) {
        const std::size_t colon = rest.find(':');
        if (access((rest.substr(0, colon) + "/" + program).c_str(), X_OK) == 0) {
            return true;
        }
        rest.erase(0, colon == std::string::npos ? rest.size() : colon + 1);
    }
    return false;
}

std::string outputOf(const std::vector<std::string>& command, const Environment& environment) {
    return LabProcess(command, environment).readAll();
}

} // namespace quietlark::lab
