#pragma once

#include "Quietlark/AppDelegate.h"
#include "Quietlark/ManualMainLoop.h"
#include "tools/quietlark-soak/Levels.h"
#include "tools/quietlark-soak/RecordedPlatform.h"
#include "tools/quietlark-soak/Recording.h"

#include <QDBusConnection>
#include <QTimer>

#include <chrono>
#include <optional>

namespace quietlark::soak {

/// The whole program on this desktop, with recorded days going by in front of it faster than they did. Needs a
/// QApplication, and ends its event loop when the days are over.
class Soak {
public:
    /// `folder`: the program's data folder. `speed`: recorded seconds in a second, at most.
    Soak(std::filesystem::path folder, Recording recording, double speed);

    /// One row for each day that was told.
    const std::vector<std::vector<Level>>& rows() const { return rows_; }

private:
    using Clock = std::chrono::steady_clock;

    void begin();
    void catchUp();
    void second();
    void sleepThrough(wumble::Date until);
    void look(const Scene& scene, double seconds);
    void pressTheIcon() const;
    void carryOut(const Act& act);
    void tellWhenQuiet();
    void tell();

    std::filesystem::path folder_;
    Recording recording_;
    double speed_;
    std::size_t scene_ = 0;
    RecordedPerson person_;
    ManualMainLoop loop_;
    std::optional<AppDelegate> program_;
    QDBusConnection bus_;
    QTimer pace_;
    Clock::time_point begun_;
    double passed_ = 0; ///< recorded seconds, but for those slept through
    int calmFor_ = 0;   ///< recorded seconds with nothing on the screen
    std::vector<std::vector<Level>> rows_;
};

} // namespace quietlark::soak
