#pragma once

#include "Quietlark/MainLoop.h"

#include <QObject>

namespace quietlark {

/// The application's event loop. Needs a QCoreApplication while anything waits on it.
class QtMainLoop final : public MainLoop {
public:
    wumble::Date now() const override;
    double uptime() const override;
    void after(double seconds, Task task) override;
    std::unique_ptr<Timer> repeating(double interval, double tolerance, Task task) override;
    void post(Task task) override;

private:
    QObject context_; ///< what waits on it ends with it
};

} // namespace quietlark
