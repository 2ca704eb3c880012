#include "Quietlark/Activity/ActivityMonitor.h"

namespace quietlark {

ActivityMonitor::ActivityMonitor(SessionWatch& watch) : _watch(watch), _state(watch.state()) {
    _watch.observe([this] { _state = _watch.state(); });
}

ActivityMonitor::~ActivityMonitor() { _watch.observe({}); }

} // namespace quietlark
