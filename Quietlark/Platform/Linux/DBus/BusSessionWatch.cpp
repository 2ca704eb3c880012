#include "Quietlark/Platform/Linux/DBus/BusSessionWatch.h"

namespace quietlark {

namespace {

const QString displayService = QStringLiteral("org.gnome.Mutter.DisplayConfig");
const QString displayPath = QStringLiteral("/org/gnome/Mutter/DisplayConfig");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

} // namespace

BusSessionWatch::BusSessionWatch(const Buses& buses, std::shared_ptr<LogindSession> logind,
                                 std::function<std::optional<bool>()> displaysAsleep)
    : buses_(buses), logind_(std::move(logind)), savers_(buses.session), displays_(buses.session),
      sampleDisplays_(std::move(displaysAsleep)) {
    logind_->observe([this] { gather(); });
    savers_.observe([this] { gather(); });
    followDisplays();
}

BusSessionWatch::~BusSessionWatch() {
    logind_->observe([] {});
}

void BusSessionWatch::followDisplays() {
    displays_.onSignal(
        {displayPath, propertiesInterface, QStringLiteral("PropertiesChanged"), {displayService}},
        [this](const QDBusMessage&) { askDisplays(); });
    displays_.followService(
        displayService, [this] { askDisplays(); },
        [this] {
            displayServiceSaysAsleep_ = false;
            gather();
        });
}

void BusSessionWatch::askDisplays() {
    displays_.getProperty({displayService, displayPath, displayService, QStringLiteral("PowerSaveMode")},
                          [this](const QVariant& mode) {
                              // 0 is on, 1 to 3 are deeper and deeper sleep, -1 is a display that can't tell.
                              displayServiceSaysAsleep_ =
                                  displays_.isRunning(displayService) && mode.toInt() > 0;
                              gather();
                          });
}

bool BusSessionWatch::ready() const { return logind_->settled() && savers_.settled(); }

void BusSessionWatch::refresh(double uptime) {
    buses_.refresh(uptime);
    sampledAsleep_ = sampleDisplays_ && sampleDisplays_().value_or(false);
    gather();
}

void BusSessionWatch::gather() {
    const SessionState now = {.screenLocked = logind_->isLocked() || savers_.anyIsActive(),
                              .displaysAsleep = displayServiceSaysAsleep_ || sampledAsleep_,
                              .systemAsleep = logind_->isPreparingForSleep()};
    if (now == state_) {
        return;
    }
    state_ = now;
    if (changed_) {
        changed_();
    }
}

} // namespace quietlark
