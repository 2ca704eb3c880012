#include "Quietlark/Platform/Linux/Audio/CaptureHardware.h"

#include <algorithm>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace quietlark {

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> entriesNamed(const fs::path& folder, std::string_view beginning,
                                   std::string_view end = "") {
    std::vector<fs::path> found;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), last; !failed && entry != last;
         entry.increment(failed)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with(beginning) && name.ends_with(end)) {
            found.push_back(entry->path());
        }
    }
    return found;
}

bool isRunning(const fs::path& substream) {
    std::ifstream status(substream / "status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with("state:")) {
            return line.find("RUNNING") != std::string::npos;
        }
    }
    return false;
}

} // namespace

bool captureHardwareRuns(const fs::path& soundFolder) {
    for (const fs::path& card : entriesNamed(soundFolder, "card")) {
        for (const fs::path& device : entriesNamed(card, "pcm", "c")) {
            if (std::ranges::any_of(entriesNamed(device, "sub"), isRunning)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace quietlark
