#pragma once

#include <QString>

namespace quietlark::logind {

inline const QString service = QStringLiteral("org.freedesktop.login1");
inline const QString path = QStringLiteral("/org/freedesktop/login1");
inline const QString managerInterface = QStringLiteral("org.freedesktop.login1.Manager");
inline const QString sessionInterface = QStringLiteral("org.freedesktop.login1.Session");

} // namespace quietlark::logind
