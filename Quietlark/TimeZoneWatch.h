#pragma once

#include <QByteArray>
#include <QFileSystemWatcher>

#include <functional>

namespace quietlark {

/// Tells when the machine is set to another time zone, as on a journey. A zone that the environment names stays for
/// the life of the process. Needs a QCoreApplication.
class TimeZoneWatch {
public:
    explicit TimeZoneWatch(std::function<void()> moved);

private:
    void look();

    std::function<void()> moved_;
    QByteArray zone_;
    QFileSystemWatcher folder_;
};

} // namespace quietlark
