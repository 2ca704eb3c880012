#pragma once

#include "Quietlark/Platform/Announcer.h"
#include "Quietlark/Platform/Linux/DBus/BusLink.h"

#include <QStringList>

#include <memory>

namespace quietlark {

/// Announcements on the bus that screen readers listen to. It is looked for when there is something to say, and
/// again when it was lost; sentences that find nobody are forgotten.
class AccessibilityBus : public Announcer {
public:
    explicit AccessibilityBus(std::shared_ptr<Bus> session) : session_(std::move(session)) {}

    void announce(const std::string& sentence) override;

private:
    bool isOnItsWay() const;
    void find();
    void join(const QString& address);
    void sayWaiting();

    BusLink session_;
    bool asking_ = false;              ///< where the bus is
    std::shared_ptr<Bus> bus_;         ///< of the screen readers; absent before the first sentence
    std::unique_ptr<BusLink> arrival_; ///< of that bus
    QStringList waiting_;              ///< to be said when it is there
};

} // namespace quietlark
