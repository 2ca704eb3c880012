#include "Quietlark/TimeZoneWatch.h"

#include <QTimeZone>

#include <utility>

namespace quietlark {

namespace {

/// The link to the zone lies there. It is replaced, so that a watch on itself would stay with the old one.
const auto folderOfTheZone = QStringLiteral("/etc");

} // namespace

TimeZoneWatch::TimeZoneWatch(std::function<void()> moved)
    : moved_(std::move(moved)), zone_(QTimeZone::systemTimeZoneId()), folder_({folderOfTheZone}) {
    QObject::connect(&folder_, &QFileSystemWatcher::directoryChanged, &folder_, [this] { look(); });
}

void TimeZoneWatch::look() {
    if (const QByteArray zone = QTimeZone::systemTimeZoneId(); zone != zone_) {
        zone_ = zone;
        moved_();
    }
}

} // namespace quietlark
