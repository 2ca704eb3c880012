#pragma once

#include <QString>

namespace quietlark::BusGreeting {

/// Whether a bus says anything at all to somebody who comes; waits for its word as long as it takes. False where there is
/// no bus. A bus that isn't reached by a socket of this machine is taken to answer.
bool isAnswered(const QString& address);

} // namespace quietlark::BusGreeting
