#pragma once

#include <chrono>
#include <functional>
#include <vector>

namespace quietlark::lab {

/// How long a piece of work, done again and again, waited for others. Time in which it worked, or in which the machine
/// had other things to do, doesn't count: that is a matter of the machine.
class Waits {
public:
    void during(const std::function<void()>& work);

    /// Milliseconds that half of them don't exceed; 0 without any.
    double usual() const;

    /// Milliseconds; 0 without any.
    double longest() const;

    /// Fails the test if a step waited as for somebody who stands still. A single wait may be longer than is usual:
    /// the machine itself may be held up.
    void expectShort() const;

private:
    std::vector<std::chrono::nanoseconds> all_;
};

} // namespace quietlark::lab
