#pragma once

#include <string>
#include <vector>

namespace quietlark::soak {

/// What the process holds of one thing.
struct Level {
    std::string what;
    long held = 0;
    long allowance = 0; ///< by so much it may have grown and still count as level
};

/// Everything that a program which runs for weeks could hold ever more of, counted now: memory, open files, threads,
/// what is its own on the X server, connections to the bus. Needs DISPLAY and a session bus; a part that can't be
/// asked is left out.
std::vector<Level> countLevels();

/// The names of what stands higher at the end than it ever stood in the first half.
std::vector<std::string> grown(const std::vector<std::vector<Level>>& rows);

} // namespace quietlark::soak
