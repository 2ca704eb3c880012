#pragma once

#include "Quietlark/Platform/Linux/Proc/AppIdentity.h"
#include "Quietlark/Platform/Microphone.h"

#include <memory>

namespace quietlark {

/// `identity` must outlive it.
std::unique_ptr<Microphone> makeMicrophone(AppIdentity& identity);

} // namespace quietlark
