#pragma once

#include "WumbleCore/Foundation/JsonCoding.h"

#include <optional>
#include <string>
#include <string_view>

namespace wumble::replay {

/// The keys of one command, read by type. The first missing key or wrong type is remembered and what is read
/// after it no longer matters: a command reads all its keys, asks `failure()` and only then changes anything.
class Arguments {
public:
    explicit Arguments(const Json::Object& keys) : keys_(keys) {}

    /// Empty while nothing is wrong.
    const std::string& failure() const { return failure_; }

    /// Absent when the key is missing or null.
    template <class Value> std::optional<Value> optional(std::string_view key) {
        const auto* json = find(key);
        if (json == nullptr || json->isNull()) {
            return std::nullopt;
        }
        auto value = decode<Value>(*json);
        if (!value) {
            fail(key, "is of the wrong type");
        }
        return value;
    }

    template <class Value> Value optional(std::string_view key, Value fallback) {
        return optional<Value>(key).value_or(std::move(fallback));
    }

    /// A default value when the key is missing or of the wrong type.
    template <class Value> Value required(std::string_view key) {
        const auto* json = find(key);
        if (json == nullptr) {
            fail(key, "is missing");
            return {};
        }
        auto value = decode<Value>(*json);
        if (!value) {
            fail(key, "is of the wrong type");
        }
        return value.value_or(Value{});
    }

    /// An object as it stands; null when the key is missing.
    const Json::Object* optionalObject(std::string_view key);
    const Json::Object* requiredObject(std::string_view key);

    /// A key as it stands, whatever its type; null when it is missing.
    const Json* find(std::string_view key) const;

    void fail(std::string_view key, std::string_view reason);

private:
    template <class Value> std::optional<Value> decode(const Json& json) const {
        return JsonDecoder(DateForm::secondsSinceEpoch).decode<Value>(json);
    }

    const Json::Object& keys_;
    std::string failure_;
};

} // namespace wumble::replay
