#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quietlark {

/// A program whose output is read. It ends with the object: asked first, and made to after half a second.
class Subprocess {
public:
    /// Finds the program by the path. Its input is empty, its errors go where ours go.
    explicit Subprocess(const std::vector<std::string>& command);
    Subprocess(Subprocess&& other) noexcept;
    Subprocess& operator=(Subprocess&&) = delete;
    ~Subprocess();

    bool isStarted() const { return pid_ > 0; }

    /// Hands over what it writes, until its output ends (true), or `stop` can be read or the seconds have passed
    /// (false). A negative `stop` never can, negative seconds never pass.
    bool read(const std::function<void(std::string bytes)>& received, int stop, double seconds) const;

    /// Whether it ends by itself, with success, within half a second. Otherwise it is made to end.
    bool endsWell();

private:
    void end();

    int pid_ = -1;
    int output_ = -1;
};

} // namespace quietlark
