#include "WumbleCore/Foundation/Json.h"
#include "WumbleCore/Foundation/JsonNumber.h"
#include "WumbleCore/Foundation/Match.h"

#include <cmath>
#include <unicode/utf8.h>

namespace wumble {

namespace {

void appendEscaped(std::string& text, unsigned char control) {
    constexpr std::string_view digits = "0123456789abcdef";
    switch (control) {
    case '"': text += "\\\""; return;
    case '\\': text += "\\\\"; return;
    case '\b': text += "\\b"; return;
    case '\f': text += "\\f"; return;
    case '\n': text += "\\n"; return;
    case '\r': text += "\\r"; return;
    case '\t': text += "\\t"; return;
    default:
        text += "\\u00";
        text += digits[control >> 4];
        text += digits[control & 0x0F];
    }
}

void appendString(std::string& text, std::string_view value) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(value.data());
    const auto length = static_cast<std::int32_t>(value.size());
    text += '"';
    for (std::int32_t place = 0; place < length;) {
        const std::int32_t start = place;
        UChar32 character = 0;
        U8_NEXT(bytes, place, length, character);
        if (character < 0) {
            text += replacement;
        } else if (character < 0x20 || character == '"' || character == '\\') {
            appendEscaped(text, static_cast<unsigned char>(character));
        } else {
            text += value.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(place - start));
        }
    }
    text += '"';
}

class Writer {
public:
    std::string text;
    bool isWritable = true;

    void operator()(std::nullptr_t) { text += "null"; }
    void operator()(bool value) { text += value ? "true" : "false"; }
    void operator()(Counter value) { appendJsonNumber(text, value); }
    void operator()(Json::Unwritable) { isWritable = false; }
    void operator()(const std::string& value) { appendString(text, value); }

    void operator()(double value) {
        isWritable = isWritable && std::isfinite(value);
        appendJsonNumber(text, value);
    }

    void operator()(const Json::Array& values) {
        char separator = '[';
        for (const auto& value : values) {
            text += std::exchange(separator, ',');
            value.visit(*this);
        }
        text += values.empty() ? "[]" : "]";
    }

    void operator()(const Json::Object& members) {
        char separator = '{';
        for (const auto& [key, value] : members) {
            text += std::exchange(separator, ',');
            appendString(text, key);
            text += ':';
            value.visit(*this);
        }
        text += members.empty() ? "{}" : "}";
    }
};

} // namespace

std::optional<std::string> Json::text() const {
    Writer writer;
    visit(writer);
    if (!writer.isWritable) {
        return std::nullopt;
    }
    return std::move(writer.text);
}

std::optional<double> Json::number() const {
    if (const auto* whole = std::get_if<Counter>(&value_)) {
        return static_cast<double>(*whole);
    }
    if (const auto* number = std::get_if<double>(&value_)) {
        return *number;
    }
    return std::nullopt;
}

std::optional<Counter> Json::wholeNumber() const {
    constexpr double pastLargest = 9223372036854775808.0;
    if (const auto* whole = std::get_if<Counter>(&value_)) {
        return *whole;
    }
    const auto* number = std::get_if<double>(&value_);
    if (number == nullptr || *number != std::trunc(*number) || *number < -pastLargest ||
        *number >= pastLargest) {
        return std::nullopt;
    }
    return static_cast<Counter>(*number);
}

void Json::assignString(std::string_view text) {
    if (auto* held = std::get_if<std::string>(&value_)) {
        held->assign(text);
    } else {
        value_.emplace<std::string>(text);
    }
}

} // namespace wumble
