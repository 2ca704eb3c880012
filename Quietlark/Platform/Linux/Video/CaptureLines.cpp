#include "Quietlark/Platform/Linux/Video/CaptureLines.h"

#include "WumbleCore/Foundation/Json.h"

#include <utility>

namespace quietlark {

namespace {

/// As the log's reader knows it.
std::string line(const std::vector<std::string>& identifiers) {
    wumble::Json::Array attributions;
    for (const std::string& identifier : identifiers) {
        attributions.emplace_back("scr:" + identifier);
    }
    const std::string list = wumble::Json(std::move(attributions)).text().value_or("[]");
    const wumble::Json event(
        wumble::Json::Object{{"eventMessage", "Active activity attributions changed to " + list}});
    return event.text().value_or("{}") + "\n";
}

} // namespace

void CaptureLines::begin() {
    const std::lock_guard guard(lock_);
    isOpen_ = true;
}

void CaptureLines::setWatchers(const std::vector<std::string>& identifiers) {
    std::string next = line(identifiers);
    const std::lock_guard guard(lock_);
    if (current_ != next) {
        current_ = std::move(next);
        if (received_) {
            received_(*current_);
        }
    }
}

void CaptureLines::end() {
    const std::lock_guard guard(lock_);
    isOpen_ = false;
    current_.reset();
    received_ = nullptr;
    if (const auto ended = std::exchange(ended_, nullptr)) {
        ended();
    }
}

std::optional<std::string> CaptureLines::current() const {
    const std::lock_guard guard(lock_);
    return current_;
}

bool CaptureLines::listen(CaptureLogRunner::Received received, CaptureLogRunner::Ended ended) {
    const std::lock_guard guard(lock_);
    if (isOpen_) {
        received_ = std::move(received);
        ended_ = std::move(ended);
    }
    return isOpen_;
}

void CaptureLines::stopListening() {
    const std::lock_guard guard(lock_);
    received_ = nullptr;
    ended_ = nullptr;
}

} // namespace quietlark
