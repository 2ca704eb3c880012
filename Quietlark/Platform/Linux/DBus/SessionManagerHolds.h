#pragma once

#include "Quietlark/Platform/Linux/DBus/BusLink.h"
#include "Quietlark/Platform/Linux/DBus/HoldSource.h"

namespace quietlark {

/// The inhibitors of the session managers of GNOME, MATE and their kin.
class SessionManagerHolds : public HoldSource {
public:
    explicit SessionManagerHolds(std::shared_ptr<Bus> session);

    bool settled() const override;
    std::vector<DisplayHold> holds() const override;

private:
    struct Inhibitor {
        QString path;
        DisplayHold hold;
        unsigned flags = 0;
        int unanswered = 3;
    };

    void list();
    void add(const QString& inhibitorPath);
    void ask(const QString& inhibitorPath, const QString& member,
             std::function<void(Inhibitor&, const QVariant&)> keep);
    void remove(const QString& inhibitorPath);

    BusLink link_;
    bool listed_ = false;
    std::vector<Inhibitor> inhibitors_;
};

} // namespace quietlark
