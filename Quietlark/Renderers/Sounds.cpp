#include "Quietlark/Renderers/PetSheets.h"
#include "WumbleCore/Motion/CueSynthesis.h"

#include <fstream>
#include <string>

namespace quietlark {

bool exportSounds(const std::filesystem::path& folder, Appearance) {
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);
    for (const auto& [cue, name] : wumble::EnumTexts<wumble::Cue>::table) {
        const auto wav = wumble::CueSynthesis::wav(cue);
        std::ofstream file(folder / (std::string(name) + ".wav"), std::ios::binary);
        file.write(reinterpret_cast<const char*>(wav.data()), static_cast<std::streamsize>(wav.size()));
        if (!file.flush()) {
            return false;
        }
    }
    return true;
}

} // namespace quietlark
