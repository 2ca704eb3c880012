#pragma once

#include "Quietlark/Platform/DesktopLook.h"

#include <QMap>
#include <QStringList>
#include <QVariantMap>

/// The settings of desktops that say how things are to look, by the names that the settings portal has for them.
namespace quietlark::LookKeys {

/// For each namespace its keys and their values.
using Values = QMap<QString, QVariantMap>;

/// The namespaces that matter here.
const QStringList& namespaces();

/// What the values say together. The setting that all desktops share wins where it states a wish, the desktop's own
/// decides where it doesn't; a value of an unexpected type counts as absent.
DesktopLook look(const Values& values);

} // namespace quietlark::LookKeys
