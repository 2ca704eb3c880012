#pragma once

#include "WumbleCore/Foundation/Counter.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace wumble {

/// One JSON value. Numbers without fraction or exponent that fit are kept as 64-bit integers, so that they
/// survive exactly; all others are doubles. A number that no double can hold reads as an empty object, so that
/// only the field it stands in fails and not the text around it.
class Json {
public:
    /// Stands for a value that has no form in JSON and makes what holds it unwritable.
    struct Unwritable {};
    using Array = std::vector<Json>;
    using Object = std::map<std::string, Json, std::less<>>;

    Json() = default;
    Json(std::nullptr_t) {}
    Json(bool value) : value_(value) {}
    Json(Counter value) : value_(value) {}
    Json(double value) : value_(value) {}
    Json(Unwritable value) : value_(value) {}
    Json(std::string value) : value_(std::move(value)) {}
    Json(std::string_view value) : value_(std::in_place_type<std::string>, value) {}
    Json(const char* value) : Json(std::string_view(value)) {}
    Json(Array value) : value_(std::move(value)) {}
    Json(Object value) : value_(std::move(value)) {}

    bool isNull() const { return std::holds_alternative<std::nullptr_t>(value_); }
    const bool* boolean() const { return std::get_if<bool>(&value_); }
    const std::string* string() const { return std::get_if<std::string>(&value_); }
    const Array* array() const { return std::get_if<Array>(&value_); }
    const Object* object() const { return std::get_if<Object>(&value_); }
    Array* array() { return std::get_if<Array>(&value_); }
    Object* object() { return std::get_if<Object>(&value_); }

    /// Any number; absent for other kinds.
    std::optional<double> number() const;

    /// A whole number of 64 bits in any spelling (3, 3.0, 1e2); absent for everything else.
    std::optional<Counter> wholeNumber() const;

    /// Hands the value to the overload of its kind.
    template <class Visitor> void visit(Visitor& visitor) const { std::visit(visitor, value_); }

    /// Takes over a string without giving up the memory of the string that was held before.
    void assignString(std::string_view text);

    /// Sorted keys, no spaces, shortest digits that read back equal, whole numbers without ".0". Bytes that
    /// aren't UTF-8 are replaced by U+FFFD. Absent when a number in it isn't finite or a part is unwritable.
    std::optional<std::string> text() const;

private:
    std::variant<std::nullptr_t, bool, Counter, double, Unwritable, std::string, Array, Object> value_;
};

/// What parsing gave: either a value or a reason.
struct JsonParseResult {
    std::optional<Json> value;
    std::string error;
};

/// Arrays and objects nested deeper than this end the reading with an error.
inline constexpr int deepestJson = 512;

/// Reads one JSON text: UTF-8, a byte order mark is allowed, a repeated key counts with its last value.
JsonParseResult parseJson(std::string_view text);

/// The members of one flat object, reused from text to text without giving its memory back: the fast road
/// for files of many short lines. A nested array or object reads as an empty array.
class FlatJsonObject {
public:
    /// False when the text isn't one JSON object.
    bool parse(std::string_view text);

    /// The last member of that name, or nothing.
    const Json* find(std::string_view key) const;

private:
    friend class FlatJsonHandler;

    struct Member {
        std::string key;
        Json value;
    };

    std::vector<Member> members_;
    std::size_t count_ = 0;
};

} // namespace wumble
