#pragma once

namespace quietlark {

/// A service of the desktop that is asked rather than called: its answers are kept, and reading one never waits.
/// A service that is missing answers "don't know", is looked for again by `refresh`, and is picked up when it
/// comes.
class Source {
public:
    virtual ~Source() = default;

    /// Whether its first answers have come, or it is known that none will.
    virtual bool ready() const = 0;

    /// Brings the answers up to date as far as that takes under a millisecond, once before each round of reads.
    /// `uptime` is that of the main loop.
    virtual void refresh(double uptime) = 0;
};

} // namespace quietlark
