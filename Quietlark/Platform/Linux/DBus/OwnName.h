#pragma once

#include <QString>

namespace quietlark::ownName {

/// This program on the buses: its well-known name, and its identifier wherever a service asks for one.
inline const QString service = QStringLiteral("com.fernwick.quietlark");
inline const QString path = QStringLiteral("/com/fernwick/quietlark");

/// As people know it.
inline const QString shown = QStringLiteral("Quietlark");

} // namespace quietlark::ownName
