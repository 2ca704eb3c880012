#pragma once

#include <QString>

namespace quietlark::BusGreeting {

/// Whether a bus says anything at all to somebody who comes; waits for its word until there is something to read from
/// `stop`, and then says no. False where there is no bus. A bus that isn't reached by a socket of this machine is taken
/// to answer.
bool isAnswered(const QString& address, int stop);

} // namespace quietlark::BusGreeting
