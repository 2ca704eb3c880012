#pragma once

#include "Quietlark/Platform/Linux/DBus/BusLink.h"
#include "Quietlark/Platform/Linux/DBus/HoldSource.h"

namespace quietlark {

/// A service of the session bus that lists its holds in one answer, by the names that programs gave
/// themselves.
class NamedHolds : public HoldSource {
public:
    struct Service {
        QString name;
        QString path;
        QString interface;
        QString list;                                          ///< the method that lists
        QString changed;                                       ///< the signal after which the list is another
        std::vector<DisplayHold> (*read)(const QDBusMessage&); ///< of the list's answer
        bool tellsOfEveryChange = true; ///< if not, a list with holds is asked for again
    };

    NamedHolds(std::shared_ptr<Bus> session, Service service);

    bool settled() const override;
    std::vector<DisplayHold> holds() const override { return holds_; }
    void refresh(double uptime) override;

    /// KDE's.
    static Service policyAgent();

    /// Xfce's and those of other desktops that offer the list; a service without it is left alone.
    static Service powerManagement();

private:
    void ask();

    BusLink link_;
    Service service_;
    bool answered_ = false;
    bool asking_ = false;
    double nextList_ = 0;
    std::vector<DisplayHold> holds_;
};

} // namespace quietlark
