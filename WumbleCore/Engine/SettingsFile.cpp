#include "WumbleCore/Engine/WumbleSettings.h"
#include "WumbleCore/Foundation/JsonCoding.h"

#include <algorithm>

namespace wumble {

namespace {

constexpr JsonEncoder encoder(DateForm::iso8601);
constexpr JsonDecoder decoder(DateForm::iso8601);

const Json* find(const Json::Object& object, std::string_view key) {
    const auto member = object.find(key);
    return member == object.end() ? nullptr : &member->second;
}

double numberOr(const Json::Object& file, std::string_view key, double fallback) {
    const auto* value = find(file, key);
    return value != nullptr ? value->number().value_or(fallback) : fallback;
}

const bool* booleanIn(const Json::Object& file, std::string_view key) {
    const auto* value = find(file, key);
    return value != nullptr ? value->boolean() : nullptr;
}

void layOver(Json::Object& merged, const Json::Object& file) {
    for (auto& [key, value] : merged) {
        if (const auto* replacement = find(file, key)) {
            value = *replacement;
        }
    }
}

void bringOverHeadsUp(const Json::Object& file, Json::Object& merged) {
    const bool* wasEnabled = booleanIn(file, "headsUpEnabled");
    if (find(file, "headsUp") == nullptr && wasEnabled != nullptr) {
        merged["headsUp"] = enumText(*wasEnabled ? HeadsUpMode::longOnly : HeadsUpMode::off);
    }
}

/// Older files had a long break every so many breaks. What was left at the defaults of that time moves to
/// the defaults of today; what the person had chosen stays.
void bringOverLongBreaks(const Json::Object& file, Json::Object& merged) {
    constexpr double oldEvery = 4;
    constexpr double oldLongLength = 180;
    constexpr double leastOldLongLength = 60;
    const double work = numberOr(file, "workInterval", 1800);
    const double shortLength = numberOr(file, "shortBreakDuration", 45);
    const bool* longWasOn = booleanIn(file, "longBreaksEnabled");
    const double every = numberOr(file, "longBreakEvery", oldEvery);
    const double longLength = numberOr(file, "longBreakDuration", oldLongLength);
    const bool isOldPair = (work == 1200 && shortLength == 20) || (work == 1800 && shortLength == 45);

    merged["longBreaksEnabled"] = true;
    if (longWasOn == nullptr || *longWasOn) {
        if (every != oldEvery || longLength != oldLongLength || !isOldPair) {
            merged["moveInterval"] = work * std::max(every, 2.0);
            return;
        }
    } else if (shortLength >= leastOldLongLength) {
        // The old short break was in fact this person's long break.
        merged["eyeBreaksEnabled"] = false;
        merged["moveInterval"] = work;
        merged["longBreakDuration"] = shortLength;
        return;
    }
    merged["moveInterval"] = 3600.0;
    merged["longBreakDuration"] = 300.0;
}

/// The look alone is never worth losing the other settings for.
void softenAppearance(Json::Object& merged) {
    auto& appearance = merged["appearance"];
    if (!decoder.decode<Appearance>(appearance)) {
        appearance = enumText(Appearance::system);
    }
}

std::optional<WumbleSettings> decodeMerged(Json::Object merged) {
    softenAppearance(merged);
    const Json written(std::move(merged));
    // A number that grew beyond what can be written fails like one that was read so.
    return written.text() ? decoder.decode<WumbleSettings>(written) : std::nullopt;
}

} // namespace

std::optional<WumbleSettings> WumbleSettings::overlaid(const Json::Object& keys) const {
    Json merged = encoder.encode(*this);
    layOver(*merged.object(), keys);
    return decodeMerged(std::move(*merged.object()));
}

WumbleSettings WumbleSettings::decode(std::string_view bytes) {
    const auto parsed = parseJson(bytes);
    const auto* file = parsed.value ? parsed.value->object() : nullptr;
    return file != nullptr ? decode(*file) : WumbleSettings{};
}

WumbleSettings WumbleSettings::decode(const Json::Object& file) {
    Json merged = encoder.encode(WumbleSettings{});
    layOver(*merged.object(), file);
    bringOverHeadsUp(file, *merged.object());
    if (find(file, "moveInterval") == nullptr && find(file, "workInterval") != nullptr) {
        bringOverLongBreaks(file, *merged.object());
    }
    auto settings = decodeMerged(std::move(*merged.object()));
    if (!settings) {
        return {};
    }
    settings->fitMoveToEyeBreaks(std::nullopt);
    settings->fitNudgesToMoveBreaks();
    return *settings;
}

} // namespace wumble
