#pragma once

#include <memory>

class QApplication;

namespace quietlark {

/// The process's QApplication: on the screens of this session where there are any, and without a display otherwise. It
/// takes nothing from the desktop's toolkit theme, since everything is drawn by the program itself.
std::unique_ptr<QApplication> makeGraphicalApplication(int& argumentCount, char** arguments);

} // namespace quietlark
