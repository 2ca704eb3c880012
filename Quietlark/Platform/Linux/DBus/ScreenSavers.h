#pragma once

#include "Quietlark/Platform/Linux/DBus/BusLink.h"

#include <map>

namespace quietlark {

/// The desktops' screen savers. One that is active counts as a lock even where it doesn't lock: nobody is
/// there.
class ScreenSavers {
public:
    explicit ScreenSavers(std::shared_ptr<Bus> session);

    /// Whether each has answered, or it is known that it doesn't run.
    bool settled() const;

    bool anyIsActive() const;

    /// Called after each change of one of them. One observer.
    void observe(std::function<void()> changed) { changed_ = std::move(changed); }

    /// Their service names, which are the names of their interfaces too. The one they all offer comes first.
    static const QStringList& services();

    /// The objects that stand for one of them, by likelihood.
    static QStringList paths(const QString& service);

    /// Whether an answer says that the object asked isn't the one: another path may be.
    static bool isElsewhere(const QDBusMessage& answer);

private:
    struct Saver {
        bool answered = false;
        bool active = false;
    };

    void ask(const QString& service, qsizetype pathIndex);
    void set(const QString& service, bool active);

    BusLink link_;
    std::map<QString, Saver> savers_;
    std::function<void()> changed_ = [] {};
};

} // namespace quietlark
