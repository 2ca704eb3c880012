#pragma once

#include <QString>

namespace quietlark::sessionManager {

/// The manager's interface has the name of its service.
inline const QString service = QStringLiteral("org.gnome.SessionManager");
inline const QString path = QStringLiteral("/org/gnome/SessionManager");

/// Of an inhibitor: the session isn't to be taken for idle.
inline constexpr unsigned idleFlag = 8;

} // namespace quietlark::sessionManager
