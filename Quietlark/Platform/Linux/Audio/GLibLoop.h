#pragma once

namespace quietlark {

/// Whether Qt runs on GLib's event loop here, the only one that the sound server's library can share with it.
bool runsOnGLib();

} // namespace quietlark
