#include "tests/lab/Spin.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

namespace quietlark::lab {

bool spinUntil(const std::function<bool()>& condition, double seconds) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (static_cast<double>(timer.elapsed()) > seconds * 1000) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QThread::msleep(2);
    }
    return true;
}

} // namespace quietlark::lab
