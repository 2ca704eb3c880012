#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace quietlark {

/// Those who want to be told of something, each for as long as it keeps what it was given.
class Observers {
public:
    [[nodiscard]] std::shared_ptr<void> add(std::function<void()> observer) {
        auto kept = std::make_shared<const std::function<void()>>(std::move(observer));
        std::erase_if(observers_, [](const auto& each) { return each.expired(); });
        observers_.push_back(kept);
        return std::const_pointer_cast<std::function<void()>>(kept);
    }

    /// One may leave, or others may come, while it is told.
    void tell() const {
        for (const auto& each : std::vector(observers_)) {
            if (const auto observer = each.lock()) {
                (*observer)();
            }
        }
    }

private:
    std::vector<std::weak_ptr<const std::function<void()>>> observers_;
};

} // namespace quietlark
