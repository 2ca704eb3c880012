#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quietlark::lab {

/// What a process sees beside the test's own environment; an empty text takes a name out of it.
using Environment = std::map<std::string, std::string>;

/// A real program that a test needs, in a process group of its own that ends with this object.
class LabProcess {
public:
    /// Begins it at once. Its standard output can be read, its standard error goes to
    /// `<logFolder>/<name>.log` or nowhere. `keepOpen` are descriptors that it inherits under the same
    /// numbers.
    explicit LabProcess(const std::vector<std::string>& command, const Environment& environment = {},
                        const std::string& logFolder = {}, const std::vector<int>& keepOpen = {});
    ~LabProcess();
    LabProcess(const LabProcess&) = delete;
    LabProcess& operator=(const LabProcess&) = delete;

    int pid() const { return pid_; }

    /// The next line of its output without the newline; absent when the output ends or `seconds` have passed.
    std::optional<std::string> readLine(double seconds = 10);

    /// All that is left of its output, to its end.
    std::string readAll(double seconds = 20);

    void writeLine(const std::string& line);
    void signal(int number) const;

    /// Waits for its end; absent when it hasn't ended by then. The exit status, or 128 and the signal's
    /// number.
    std::optional<int> wait(double seconds = 10);

    /// Asks it to end, and makes it end after two seconds.
    void end();

private:
    std::optional<int> reap(bool hang);

    int pid_ = -1;
    int output_ = -1;
    int input_ = -1;
    std::string read_;
    std::optional<int> status_;
};

/// Whether a program of this name is on the path.
bool isInstalled(const std::string& program);

/// Runs a command to its end and gives what it wrote.
std::string outputOf(const std::vector<std::string>& command, const Environment& environment = {});

/// Skips a test on a machine that lacks a program.
#define LAB_NEEDS(program)                                                                                   \
    if (!::quietlark::lab::isInstalled(program)) {                                                           \
        GTEST_SKIP() << (program) << " isn't installed";                                                     \
    }

} // namespace quietlark::lab
