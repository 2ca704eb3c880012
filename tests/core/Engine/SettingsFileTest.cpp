#include "WumbleCore/Engine/WumbleSettings.h"
#include "WumbleCore/Foundation/JsonCoding.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

constexpr JsonEncoder encoder(DateForm::iso8601);

std::string written(const WumbleSettings& settings) { return encoder.encode(settings).text().value(); }

TEST(SettingsFile, givesTheDefaultsAsAWholeWhenOneValueCantBeRead) {
    for (const char* text :
         {"", "nonsense", "[]", "null", "{\"volume\":0.1", R"({"volume":0.1,"enforcement":"gentle"})",
          R"({"volume":0.1,"workInterval":null})", R"({"volume":0.1,"nudgesBetween":1.5})",
          R"({"volume":0.1,"blinkEnabled":1})", R"({"volume":0.1,"headsUpLead":true})",
          R"({"volume":0.1,"headsUpLead":1e999})", R"({"volume":0.1,"workInterval":1e308})",
          R"({"volume":0.1,"customShortTitles":["a",1]})", R"({"volume":0.1,"officeHours":[{"weekday":1}]})",
          R"({"volume":0.1,"snoozesPerDay":{"count":{"_0":2},"unlimited":{}}})"}) {
        EXPECT_EQ(WumbleSettings::decode(text), WumbleSettings()) << text;
    }
}

TEST(SettingsFile, keepsWhatItKnowsAndMendsWhatItCan) {
    struct Case {
        const char* text;
        WumbleSettings settings;
    };
    const Case cases[] = {
        {"{}", {}},
        {R"({"volume":0.1,"hats":3})", {.volume = 0.1}},
        {R"({"volume":0.1,"appearance":"sepia"})", {.volume = 0.1}},
        {R"({"volume":0.1,"appearance":7})", {.volume = 0.1}},
        {R"({"headsUpEnabled":false})", {.headsUp = HeadsUpMode::off}},
        {R"({"headsUpEnabled":true})", {.headsUp = HeadsUpMode::longOnly}},
        {R"({"headsUp":"all","headsUpEnabled":false})", {.headsUp = HeadsUpMode::all}},
        {R"({"workInterval":2400,"moveInterval":3600})", {.workInterval = 2400, .moveInterval = 4800}},
        {R"({"eyeBreaksEnabled":false,"moveInterval":1500,"nudgeInterval":1800})",
         {.eyeBreaksEnabled = false, .moveInterval = 1500, .nudgeInterval = 1200}},
        {R"({"longBreaksEnabled":false,"moveInterval":1500})",
         {.longBreaksEnabled = false, .moveInterval = 1500}},
        {R"({"workInterval":-1,"moveInterval":-2})", {.workInterval = -1, .moveInterval = -2}},
    };
    for (const auto& [text, settings] : cases) {
        EXPECT_EQ(written(WumbleSettings::decode(text)), written(settings)) << text;
    }
}

TEST(SettingsFile, bringsOverTheLongBreaksOfOldFiles) {
    struct Case {
        const char* text;
        WumbleSettings settings;
    };
    const Case cases[] = {
        // What stood at the defaults of that time moves to those of today …
        {R"({"workInterval":1800})", {.workInterval = 1800}},
        {R"({"workInterval":1200,"shortBreakDuration":20,"longBreakEvery":4,"longBreakDuration":180})",
         {.shortBreakDuration = 20}},
        {R"({"workInterval":1200,"shortBreakDuration":59,"longBreaksEnabled":false})",
         {.shortBreakDuration = 59}},
        // … what had been chosen stays …
        {R"({"workInterval":1200})", {.moveInterval = 4800}},
        {R"({"workInterval":1500,"longBreakEvery":3})", {.workInterval = 1500, .moveInterval = 4500}},
        {R"({"workInterval":1800,"longBreakDuration":240,"longBreaksEnabled":"yes"})",
         {.workInterval = 1800, .longBreakDuration = 240, .moveInterval = 7200}},
        // … and a quick break of a minute was a long one.
        {R"({"workInterval":1200,"shortBreakDuration":90,"longBreaksEnabled":false})",
         {.shortBreakDuration = 90,
          .eyeBreaksEnabled = false,
          .longBreakDuration = 90,
          .moveInterval = 1200,
          .nudgeInterval = 900}},
        // A file that knows the interval isn't old.
        {R"({"workInterval":1500,"moveInterval":3000,"longBreakEvery":3})",
         {.workInterval = 1500, .moveInterval = 3000}},
    };
    for (const auto& [text, settings] : cases) {
        EXPECT_EQ(written(WumbleSettings::decode(text)), written(settings)) << text;
    }
}

/// Another value of the same kind.
Json otherValue(const std::string& key, const Json& value) {
    static const std::map<std::string, const char*> otherCases{
        {"headsUp", "all"},        {"enforcement", "casual"}, {"doubleEscapeAction", "snooze"},
        {"reminderSize", "small"}, {"nudgeSpot", "lower"},    {"breakScreenStyle", "blur"},
        {"appearance", "dark"}};
    if (const bool* flag = value.boolean()) {
        return !*flag;
    }
    if (const auto number = value.number()) {
        return *number * 2;
    }
    if (value.array() != nullptr) {
        return Json::Array{};
    }
    return value.object() != nullptr ? Limit::count(7).toJson() : Json(otherCases.at(key));
}

TEST(SettingsFile, readsAndWritesEveryKey) {
    const Json defaults = encoder.encode(WumbleSettings());
    EXPECT_EQ(defaults.object()->size(), 64U);
    for (const auto& [key, value] : *defaults.object()) {
        const Json other =
            key.ends_with("Titles") || key == "focusApps" ? Json::Array{"mine"} : otherValue(key, value);
        const Json read = encoder.encode(WumbleSettings::decode(Json::Object{{key, other}}));
        EXPECT_NE(other.text(), value.text()) << key;
        EXPECT_EQ(read.object()->at(key).text(), other.text()) << key;
    }
}

} // namespace
} // namespace wumble
