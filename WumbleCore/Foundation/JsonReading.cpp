#include "WumbleCore/Foundation/Json.h"
#include "WumbleCore/Foundation/JsonNumber.h"

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

namespace wumble {

namespace {

/// Numbers are handed over as their digits: what they mean, and whether they fit, is ours to say.
constexpr unsigned parseFlags = rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseValidateEncodingFlag;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string_view withoutByteOrderMark(std::string_view text) {
    return text.starts_with(byteOrderMark) ? text.substr(byteOrderMark.size()) : text;
}

/// The reader takes a zero byte for the end of the text.
bool hasZeroByte(std::string_view text) { return text.find('\0') != std::string_view::npos; }

/// What all handlers share: the count of open containers, which also bounds the reader's recursion.
template <class Handler> class DepthHandler
    : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Handler> {
public:
    bool tooDeep() const { return depth_ > deepestJson; }

    void restart() { depth_ = 0; }

protected:
    bool enter() { return ++depth_ <= deepestJson; }
    void leave() { --depth_; }
    int depth() const { return depth_; }

private:
    int depth_ = 0;
};

class TreeHandler : public DepthHandler<TreeHandler> {
public:
    bool Null() { return add(nullptr); }
    bool Bool(bool value) { return add(value); }
    bool RawNumber(const char* digits, unsigned length, bool) { return add(jsonNumber({digits, length})); }
    bool String(const char* text, unsigned length, bool) { return add(std::string_view(text, length)); }
    bool StartObject() { return open(Json::Object{}); }
    bool EndObject(unsigned) { return close(); }
    bool StartArray() { return open(Json::Array{}); }
    bool EndArray(unsigned) { return close(); }

    bool Key(const char* text, unsigned length, bool) {
        keys_.emplace_back(text, length);
        return true;
    }

    void restart() { *this = TreeHandler(); }

    Json takeRoot() { return std::move(root_); }

private:
    bool open(Json container) {
        open_.push_back(std::move(container));
        return enter();
    }

    bool close() {
        leave();
        Json finished = std::move(open_.back());
        open_.pop_back();
        return add(std::move(finished));
    }

    bool add(Json value) {
        if (open_.empty()) {
            root_ = std::move(value);
        } else if (auto* object = open_.back().object()) {
            object->insert_or_assign(std::move(keys_.back()), std::move(value));
            keys_.pop_back();
        } else {
            open_.back().array()->push_back(std::move(value));
        }
        return true;
    }

    Json root_;
    std::vector<Json> open_;
    std::vector<std::string> keys_;
};

/// The reader gives a whole text up for one number that no double can hold, and for some that are only spelled
/// at length. Written as what they mean to us they fail no more than the field they stand in.
std::string withNumbersSpelledAnew(std::string_view text) {
    constexpr std::string_view numberCharacters = "+-.0123456789Ee";
    std::string result;
    bool isInString = false;
    for (std::size_t place = 0; place < text.size();) {
        const auto length = text.substr(place).find_first_not_of(numberCharacters);
        const auto word = text.substr(place, length);
        if (!isInString && !word.empty()) {
            result += isJsonNumber(word) ? jsonNumber(word).text().value() : word;
            place += word.size();
            continue;
        }
        const bool isEscape = isInString && text[place] == '\\';
        isInString = isInString != (text[place] == '"');
        const auto copied = text.substr(place, isEscape ? 2 : 1);
        result += copied;
        place += copied.size();
    }
    return result;
}

template <class Handler> rapidjson::ParseResult parseInto(Handler& handler, std::string_view text) {
    const auto parse = [](Handler& target, std::string_view bytes) {
        rapidjson::MemoryStream stream(bytes.data(), bytes.size());
        rapidjson::Reader reader;
        return reader.Parse<parseFlags>(stream, target);
    };
    const auto result = parse(handler, text);
    if (result.Code() != rapidjson::kParseErrorNumberTooBig) {
        return result;
    }
    handler.restart();
    return parse(handler, withNumbersSpelledAnew(text));
}

} // namespace

JsonParseResult parseJson(std::string_view text) {
    if (hasZeroByte(text)) {
        return {std::nullopt, "a zero byte stands in the text"};
    }
    text = withoutByteOrderMark(text);
    TreeHandler handler;
    const auto result = parseInto(handler, text);
    if (!result.IsError()) {
        return {handler.takeRoot(), {}};
    }
    const std::string reason =
        handler.tooDeep() ? "nested too deeply" : rapidjson::GetParseError_En(result.Code());
    return {std::nullopt, reason + " (byte " + std::to_string(result.Offset()) + ")"};
}

class FlatJsonHandler : public DepthHandler<FlatJsonHandler> {
public:
    explicit FlatJsonHandler(FlatJsonObject& object) : object_(object) {}

    void restart() {
        DepthHandler::restart();
        object_.count_ = 0;
    }

    bool Null() { return set(nullptr); }
    bool Bool(bool value) { return set(value); }
    bool RawNumber(const char* digits, unsigned length, bool) { return set(jsonNumber({digits, length})); }
    bool StartObject() { return isRoot() ? enter() : openNested(); }
    bool StartArray() { return !isRoot() && openNested(); }
    bool EndObject(unsigned) { return close(); }
    bool EndArray(unsigned) { return close(); }

    bool String(const char* text, unsigned length, bool) {
        if (isMember()) {
            object_.members_[object_.count_ - 1].value.assignString({text, length});
        }
        return !isRoot();
    }

    bool Key(const char* text, unsigned length, bool) {
        if (!isMember()) {
            return true;
        }
        if (object_.count_ == object_.members_.size()) {
            object_.members_.emplace_back();
        }
        object_.members_[object_.count_++].key.assign(text, length);
        return true;
    }

private:
    bool isRoot() const { return depth() == 0; }
    bool isMember() const { return depth() == 1; }

    bool set(Json value) {
        if (isMember()) {
            object_.members_[object_.count_ - 1].value = std::move(value);
        }
        return !isRoot();
    }

    bool openNested() { return set(Json::Array{}) && enter(); }

    bool close() {
        leave();
        return true;
    }

    FlatJsonObject& object_;
};

bool FlatJsonObject::parse(std::string_view text) {
    count_ = 0;
    if (hasZeroByte(text)) {
        return false;
    }
    FlatJsonHandler handler(*this);
    return !parseInto(handler, withoutByteOrderMark(text)).IsError();
}

const Json* FlatJsonObject::find(std::string_view key) const {
    for (std::size_t place = count_; place > 0; --place) {
        if (members_[place - 1].key == key) {
            return &members_[place - 1].value;
        }
    }
    return nullptr;
}

} // namespace wumble
