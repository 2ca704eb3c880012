#pragma once

#include "Quietlark/Theme/Appearance.h"

#include <QMetaType>

class QWidget;

namespace quietlark {

/// Gives an appearance to a widget and to all in it that have none of their own, and has them drawn again.
void setAppearance(QWidget& root, const Appearance& appearance);

/// That of the nearest widget from this one upwards that was given one; the default without any.
Appearance appearanceOf(const QWidget& widget);

} // namespace quietlark

Q_DECLARE_METATYPE(quietlark::Appearance)
