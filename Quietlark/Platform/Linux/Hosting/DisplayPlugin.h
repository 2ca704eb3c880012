#pragma once

namespace quietlark {

/// Has the coming QApplication run on the X server of this session where one answers, and without any display
/// otherwise: a program with nothing to draw on still keeps its day. A server that doesn't answer is given up soon.
void chooseDisplayPlugin();

} // namespace quietlark
