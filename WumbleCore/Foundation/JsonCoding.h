#pragma once

#include "WumbleCore/Foundation/Date.h"
#include "WumbleCore/Foundation/EnumTexts.h"
#include "WumbleCore/Foundation/Json.h"
#include "WumbleCore/Foundation/UUID.h"

#include <map>

namespace wumble {

/// How a date stands in JSON: as text in the files, as a number of seconds in recordings.
enum class DateForm { iso8601, secondsSinceEpoch };

/// A record names its keys once, for both directions, in a static function
/// `visitJsonFields(visitor)` that calls `visitor("key", &Record::member)` for each. A `std::optional` member
/// may be missing or null and is left out when absent; every other key is required.
template <class Record>
concept HasJsonFields = requires {
    Record::visitJsonFields([](std::string_view, auto) {});
};

/// A type with a form of its own brings `toJson()` and a static `fromJson(json)` that may be absent.
template <class Value>
concept HasOwnJsonForm = requires(const Value& value, const Json& json) {
    { value.toJson() } -> std::same_as<Json>;
    { Value::fromJson(json) } -> std::same_as<std::optional<Value>>;
};

/// A record whose reading depends on the key it stands under in a map brings a static `fromJson(json, key)`.
template <class Value>
concept HasKeyedJsonForm = requires(const Json& json, std::string_view key) {
    { Value::fromJson(json, key) } -> std::same_as<std::optional<Value>>;
};

class JsonEncoder {
public:
    constexpr explicit JsonEncoder(DateForm dateForm) : dateForm_(dateForm) {}

    Json encode(bool value) const { return value; }
    Json encode(double value) const { return value; }
    Json encode(Counter value) const { return value; }
    Json encode(const std::string& value) const { return value; }
    Json encode(const UUID& value) const { return value.text(); }

    /// A date that has no text makes the whole value unwritable, as a number that isn't finite does.
    Json encode(Date value) const {
        if (dateForm_ == DateForm::secondsSinceEpoch) {
            return value.secondsSinceEpoch;
        }
        const auto text = iso8601Text(value);
        return text ? Json(*text) : Json(Json::Unwritable{});
    }

    template <HasEnumTexts E> Json encode(E value) const { return enumText(value); }
    template <HasOwnJsonForm Value> Json encode(const Value& value) const { return value.toJson(); }

    template <class Value> Json encode(const std::vector<Value>& values) const {
        Json::Array array;
        for (const auto& value : values) {
            array.push_back(encode(value));
        }
        return array;
    }

    template <class Value> Json encode(const std::map<std::string, Value>& values) const {
        Json::Object object;
        for (const auto& [key, value] : values) {
            put(object, key, value);
        }
        return object;
    }

    template <HasJsonFields Record> Json encode(const Record& record) const {
        Json::Object object;
        Record::visitJsonFields([&](std::string_view key, auto member) { put(object, key, record.*member); });
        return object;
    }

    template <class Value> void put(Json::Object& object, std::string_view key, const Value& value) const {
        object.insert_or_assign(std::string(key), encode(value));
    }

    template <class Value>
    void put(Json::Object& object, std::string_view key, const std::optional<Value>& value) const {
        if (value) {
            put(object, key, *value);
        }
    }

private:
    DateForm dateForm_;
};

class JsonDecoder {
public:
    constexpr explicit JsonDecoder(DateForm dateForm) : dateForm_(dateForm) {}

    /// The value, strictly by type; absent when anything in it is missing or of another type.
    template <class Value> std::optional<Value> decode(const Json& json) const {
        std::optional<Value> value(std::in_place);
        if (!read(json, *value)) {
            value.reset();
        }
        return value;
    }

    /// The same for the members of an object that is looked up by `find(key)`, which gives null for a missing
    /// one.
    template <HasJsonFields Record, class Find> std::optional<Record> decodeMembers(const Find& find) const {
        std::optional<Record> record(std::in_place);
        bool isComplete = true;
        Record::visitJsonFields([&](std::string_view key, auto member) {
            isComplete = isComplete && readMember(find(key), (*record).*member);
        });
        if (!isComplete) {
            record.reset();
        }
        return record;
    }

private:
    template <class Value> static bool take(const std::optional<Value>& found, Value& value) {
        if (found) {
            value = *found;
        }
        return found.has_value();
    }

    bool read(const Json& json, bool& value) const {
        const bool* found = json.boolean();
        return found != nullptr && (value = *found, true);
    }
    bool read(const Json& json, double& value) const { return take(json.number(), value); }
    bool read(const Json& json, Counter& value) const { return take(json.wholeNumber(), value); }
    bool read(const Json& json, std::string& value) const {
        const auto* found = json.string();
        return found != nullptr && (value = *found, true);
    }
    bool read(const Json& json, UUID& value) const {
        const auto* text = json.string();
        return text != nullptr && take(UUID::fromText(*text), value);
    }
    bool read(const Json& json, Date& value) const {
        if (dateForm_ == DateForm::secondsSinceEpoch) {
            return read(json, value.secondsSinceEpoch);
        }
        const auto* text = json.string();
        return text != nullptr && take(dateFromIso8601(*text), value);
    }

    template <HasEnumTexts E> bool read(const Json& json, E& value) const {
        const auto* text = json.string();
        return text != nullptr && take(enumFromText<E>(*text), value);
    }

    template <HasOwnJsonForm Value> bool read(const Json& json, Value& value) const {
        return take(Value::fromJson(json), value);
    }

    template <class Value> bool read(const Json& json, std::vector<Value>& values) const {
        const auto* array = json.array();
        if (array == nullptr) {
            return false;
        }
        values.clear();
        for (const auto& element : *array) {
            if (!read(element, values.emplace_back())) {
                return false;
            }
        }
        return true;
    }

    template <HasKeyedJsonForm Value>
    bool read(const Json& json, std::map<std::string, Value>& values) const {
        const auto* object = json.object();
        if (object == nullptr) {
            return false;
        }
        values.clear();
        for (const auto& [key, element] : *object) {
            if (!take(Value::fromJson(element, key), values[key])) {
                return false;
            }
        }
        return true;
    }

    template <HasJsonFields Record> bool read(const Json& json, Record& record) const {
        const auto* object = json.object();
        return object != nullptr && take(decodeMembers<Record>([&](std::string_view key) {
                                             const auto member = object->find(key);
                                             return member == object->end() ? nullptr : &member->second;
                                         }),
                                         record);
    }

    template <class Value> bool readMember(const Json* json, Value& value) const {
        return json != nullptr && read(*json, value);
    }

    template <class Value> bool readMember(const Json* json, std::optional<Value>& value) const {
        if (json == nullptr || json->isNull()) {
            value.reset();
            return true;
        }
        return read(*json, value.emplace());
    }

    DateForm dateForm_;
};

} // namespace wumble
