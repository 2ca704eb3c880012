#pragma once

#include <filesystem>

namespace quietlark {

/// Whether a capture stream of any sound card runs, whoever opened it, as the kernel's sound folder tells. False
/// where there is no such folder.
bool captureHardwareRuns(const std::filesystem::path& soundFolder);

} // namespace quietlark
