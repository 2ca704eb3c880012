#pragma once

#include "WumbleCore/Foundation/Counter.h"
#include "WumbleCore/Foundation/Json.h"

#include <optional>

namespace wumble {

/// How often something may happen: a count, or as often as one likes.
class Limit {
public:
    static constexpr Limit unlimited() { return Limit(std::nullopt); }
    static constexpr Limit count(Counter count) { return Limit(count); }

    constexpr Limit() = default;
    constexpr bool operator==(const Limit&) const = default;

    /// Whether one more is allowed after `used`.
    constexpr bool allows(Counter used) const { return !count_ || used < *count_; }

    /// What is left after `used`, never below 0; absent when unlimited.
    std::optional<Counter> remaining(Counter used) const;

    /// `{"count":{"_0":3}}` or `{"unlimited":{}}`.
    Json toJson() const;

    /// Absent unless the object has exactly one key and that is one of the two cases.
    static std::optional<Limit> fromJson(const Json& json);

private:
    constexpr explicit Limit(std::optional<Counter> count) : count_(count) {}

    std::optional<Counter> count_;
};

} // namespace wumble
