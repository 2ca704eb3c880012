#include "WumbleCore/Words/BreakWords.h"

namespace wumble::BreakWords {

std::string filled(std::string_view text, WumbleKeepsake keepsake) {
    std::string result(text);
    const auto word = noun(keepsake);
    for (auto slot = result.find(keepsakeSlot); slot != std::string::npos;
         slot = result.find(keepsakeSlot, slot + word.size())) {
        result.replace(slot, keepsakeSlot.size(), word);
    }
    return result;
}

} // namespace wumble::BreakWords
