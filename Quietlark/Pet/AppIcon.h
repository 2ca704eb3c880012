#pragma once

#include <QIcon>
#include <QImage>

#include <array>

/// The picture of the program among others: in launchers, in the list of windows, in what opens at login.
namespace quietlark::AppIcon {

/// Those that desktops ask for, in pixels.
inline constexpr std::array sizes{16, 22, 24, 32, 48, 64, 128, 256, 512};

QImage image(int size);

/// In the sizes that panels and switchers show beside a window.
QIcon ofWindows();

} // namespace quietlark::AppIcon
