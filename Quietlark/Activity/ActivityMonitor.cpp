#include "Quietlark/Activity/ActivityMonitor.h"

namespace quietlark {

ActivityMonitor::ActivityMonitor(SessionWatch& watch) : watch_(watch), state_(watch.state()) {
    watch_.observe([this] { state_ = watch_.state(); });
}

ActivityMonitor::~ActivityMonitor() { watch_.observe({}); }

} // namespace quietlark
