#pragma once

#include <map>
#include <string>

namespace quietlark::soak {

/// What this process has on the X server by kind ("WINDOW", "PIXMAP"), with its connections as "connection"; empty
/// where there is no server or it doesn't tell.
std::map<std::string, long> ownXResources();

} // namespace quietlark::soak
