#pragma once

#include "Quietlark/Platform/Linux/DBus/BusLink.h"

namespace quietlark {

/// What logind knows of our own session and of the machine's sleep.
class LogindSession {
public:
    explicit LogindSession(std::shared_ptr<Bus> system);

    /// Whether logind has answered, or it is known that it won't.
    bool settled() const;

    /// The object of our session; empty where there is none.
    const QString& path() const { return path_; }

    /// As logind last told. A lock outlives a logind that restarts, until that one tells itself.
    bool isLocked() const { return locked_; }

    bool isPreparingForSleep() const { return preparingForSleep_; }

    /// Called after each change of the two. One observer.
    void observe(std::function<void()> changed) { changed_ = std::move(changed); }

private:
    void find();
    void tryWay(qsizetype index);
    void setPath(const QString& path);
    void askLocked();
    void setLocked(bool locked);
    void setPreparingForSleep(bool preparing);

    BusLink link_;
    QString path_;
    QString followedPath_;
    bool found_ = false;
    bool locked_ = false;
    bool preparingForSleep_ = false;
    std::function<void()> changed_ = [] {};
};

} // namespace quietlark
