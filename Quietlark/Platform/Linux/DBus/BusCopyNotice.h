#pragma once

#include "Quietlark/Platform/CopyNotice.h"
#include "Quietlark/Platform/Linux/DBus/ApplicationObject.h"
#include "Quietlark/Platform/Linux/DBus/SessionEnd.h"

#include <optional>

namespace quietlark {

/// Copies of this program reach each other by a signal on the session bus; the desktop reaches the one that
/// owns the well-known name.
class BusCopyNotice : public CopyNotice {
public:
    explicit BusCopyNotice(const Buses& buses) : buses_(buses), link_(buses.session) {}
    ~BusCopyNotice() override;

    void postAnotherCopyStarted(const std::string& folder) override;
    void observeAnotherCopyStarted(const std::string& folder, std::function<void()> started) override;

    /// Takes the well-known name where it is free. One observer.
    void observeActivation(std::function<void()> activated) override;

    /// One observer.
    void observeSessionEnd(std::function<void()> ending) override;

private:
    void appear();

    Buses buses_;
    BusLink link_;
    std::unique_ptr<ApplicationObject> application_;
    std::optional<SessionEnd> sessionEnd_;
};

} // namespace quietlark
