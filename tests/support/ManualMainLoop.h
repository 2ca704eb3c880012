#pragma once

#include "Quietlark/ManualMainLoop.h"

namespace quietlark::test {

using quietlark::ManualMainLoop;

} // namespace quietlark::test
