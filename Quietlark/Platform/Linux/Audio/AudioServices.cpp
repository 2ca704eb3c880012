#include "Quietlark/Platform/Linux/Audio/AudioServices.h"

#include "Quietlark/Platform/Linux/Audio/PulseMicrophone.h"

namespace quietlark {

std::unique_ptr<Microphone> makeMicrophone(AppIdentity& identity) {
    return std::make_unique<PulseMicrophone>(identity);
}

} // namespace quietlark
