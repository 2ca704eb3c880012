#include "WumbleCore/Foundation/Json.h"
#include "WumbleCore/Foundation/JsonCoding.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>

namespace wumble {
namespace {

std::string rewritten(std::string_view text) {
    const auto parsed = parseJson(text);
    return parsed.value ? parsed.value->text().value_or("unwritable") : "no JSON";
}

TEST(Json, writesSortedKeysAndShortNumbers) {
    struct Case {
        std::string_view read;
        std::string_view written;
    };
    for (const auto& [read, written] : {
             Case{R"( {"b" : 1.0, "a":[ ], "B":{}, "a\u0062":null} )", R"({"B":{},"a":[],"ab":null,"b":1})"},
             Case{R"({"a":1,"a":2})", R"({"a":2})"},
             Case{R"([1e2, -0.0, 100000.0, 1773000000.0, 9007199254740993.0, 1e22])",
                  R"([100,0,100000,1773000000,9007199254740992,1e+22])"},
             Case{R"([1e2, -0.0, 0.1, 1e300, 9223372036854775807, 9223372036854775808, 1e-400, -1.5E+3])",
                  R"([100,0,0.1,1e+300,9223372036854775807,9223372036854775808,0,-1500])"},
             Case{R"("\u00e9\ud83c\udf61\/\n\u0001\"\\")", "\"é🍡/\\n\\u0001\\\"\\\\\""},
             Case{"\xEF\xBB\xBF[true,false]", "[true,false]"},
             // A number that no double holds spoils its own field only.
             Case{R"({"a":1e999,"b":"1e999 \" -1e999","c":[-1e999,2]})",
                  R"({"a":{},"b":"1e999 \" -1e999","c":[{},2]})"},
         }) {
        EXPECT_EQ(rewritten(read), written);
    }
}

TEST(Json, refusesWhatIsNoJson) {
    using namespace std::string_view_literals;
    for (const auto text : {""sv,
                            " "sv,
                            "{"sv,
                            "[1,]"sv,
                            "{a:1}"sv,
                            "01"sv,
                            "+1"sv,
                            ".5"sv,
                            "1."sv,
                            "1e"sv,
                            "[1.e999]"sv,
                            "[01e999]"sv,
                            "[1e999e5]"sv,
                            "[1e999-]"sv,
                            "NaN"sv,
                            "'a'"sv,
                            "[1] 2"sv,
                            "\"\t\""sv,
                            "\"\\x\""sv,
                            "\"\\ud800\""sv,
                            "\"\xC3\x28\""sv,
                            "\"\xED\xA0\x80\""sv,
                            "// c\n1"sv,
                            "1\0"sv,
                            "{}\0garbage"sv,
                            "[1e999"sv}) {
        const auto parsed = parseJson(text);
        EXPECT_FALSE(parsed.value) << text;
        EXPECT_FALSE(parsed.error.empty()) << text;
    }
}

TEST(Json, boundsItsDepth) {
    const auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_TRUE(parseJson(nested(512)).value);
    EXPECT_FALSE(parseJson(nested(513)).value);
    EXPECT_FALSE(parseJson(std::string(5'000'000, '[')).value);
    EXPECT_FALSE(FlatJsonObject().parse("{\"a\":" + nested(600) + "}"));
}

TEST(Json, everyNumberReadsBackEqual) {
    std::mt19937_64 random(7);
    for (int round = 0; round < 20'000; ++round) {
        const auto number = std::bit_cast<double>(random());
        const auto text = Json(number).text();
        ASSERT_EQ(text.has_value(), std::isfinite(number));
        if (text) {
            ASSERT_EQ(parseJson(*text).value->number(), number) << *text;
            ASSERT_FALSE(text->ends_with(".0"));
        }
    }
}

/// Up to 400 digits with a point and a power of ten anywhere.
std::string randomNumber(std::mt19937_64& random) {
    const auto digits = [&](std::size_t most) {
        std::string text(1 + random() % most, '0');
        for (std::size_t place = random() % text.size(); place < text.size(); ++place) {
            text[place] = static_cast<char>('0' + random() % 10);
        }
        return text;
    };
    const std::string sign = random() % 2 == 0 ? "-" : "";
    const std::string whole = random() % 3 == 0 ? "0" : std::to_string(1 + random() % 9) + digits(400);
    const std::string fraction = random() % 3 == 0 ? "" : "." + digits(400);
    const std::string exponents[] = {"", "e", "E+", "e-"};
    const auto& exponent = exponents[random() % 4];
    return sign + whole + fraction + exponent + (exponent.empty() ? "" : std::to_string(random() % 800));
}

TEST(Json, anyNumberThatADoubleHoldsIsReadHoweverItIsSpelled) {
    std::mt19937_64 random(8);
    for (int round = 0; round < 20'000; ++round) {
        const auto text = randomNumber(random);
        const auto parsed = parseJson("[" + text + ",1]");
        ASSERT_TRUE(parsed.value) << text;
        const double expected = std::strtod(text.c_str(), nullptr);
        ASSERT_EQ(parsed.value->array()->front().number(),
                  std::isfinite(expected) ? std::optional(expected) : std::nullopt)
            << text;
    }
}

TEST(Json, replacesBytesThatAreNoText) {
    EXPECT_EQ(Json("a\xC3(\xFF").text(), "\"a\xEF\xBF\xBD(\xEF\xBF\xBD\"");
    EXPECT_EQ(rewritten(*Json("a\xC3(\xFF").text()), *Json("a\xC3(\xFF").text());
}

TEST(JsonDecoder, tellsKindsApart) {
    constexpr JsonDecoder decoder(DateForm::iso8601);
    const auto json = [](std::string_view text) { return parseJson(text).value.value(); };
    EXPECT_EQ(decoder.decode<Counter>(json("3.0")), 3);
    EXPECT_EQ(decoder.decode<Counter>(json("1e2")), 100);
    for (const auto* text : {"true", "1.5", "\"1\"", "null", "1e30", "9223372036854775808", "1e999"}) {
        EXPECT_FALSE(decoder.decode<Counter>(json(text))) << text;
    }
    for (const auto* text : {"true", "null", "\"1\"", "[1]", "1e999"}) {
        EXPECT_FALSE(decoder.decode<double>(json(text))) << text;
    }
    EXPECT_FALSE(decoder.decode<bool>(json("1")));
    EXPECT_FALSE(decoder.decode<std::vector<std::string>>(json("[\"a\",1]")));
}

TEST(Date, readsAndWritesOneFormOnly) {
    EXPECT_EQ(iso8601Text(Date{1773044142.99}), "2026-03-09T08:15:42Z");
    EXPECT_EQ(iso8601Text(Date{-0.5}), "1969-12-31T23:59:59Z");
    EXPECT_EQ(dateFromIso8601("2024-02-29T23:59:59Z"), Date{1709251199});
    for (const double seconds : {-62135596800.0, 253402300799.0, 0.0, 951782400.0}) {
        EXPECT_EQ(dateFromIso8601(iso8601Text(Date{seconds}).value()), Date{seconds});
    }
    for (const double seconds : {-62135596801.0, 253402300800.0, 1e300, std::nan("")}) {
        EXPECT_FALSE(iso8601Text(Date{seconds}));
    }
    for (const auto* text : {"", "2026-03-09", "2026-03-09T08:15:42", "2026-03-09T08:15:42z",
                             "2026-03-09 08:15:42Z", "2026-03-09T08:15:42.0Z", "2026-03-09T08:15:42+00:00",
                             "2026-02-29T00:00:00Z", "2026-13-01T00:00:00Z", "2026-03-09T24:00:00Z",
                             "2026-03-09T08:60:00Z", "0000-01-01T00:00:00Z", "2026-03-09T08:15:4/Z"}) {
        EXPECT_FALSE(dateFromIso8601(text)) << text;
    }
}

TEST(UUID, hasOneFormAndReadsBothCases) {
    const auto id = UUID::fromText("a61cf892-CCD6-4186-8c3a-d11f70cb2c90");
    ASSERT_TRUE(id);
    EXPECT_EQ(id->text(), "A61CF892-CCD6-4186-8C3A-D11F70CB2C90");
    for (const auto* text : {"", "A61CF892CCD641868C3AD11F70CB2C90", "A61CF892-CCD6-4186-8C3A-D11F70CB2C9",
                             "A61CF892-CCD6-4186-8C3A-D11F70CB2C9G", "{61CF892-CCD6-4186-8C3A-D11F70CB2C90",
                             "A61CF892+CCD6-4186-8C3A-D11F70CB2C90"}) {
        EXPECT_FALSE(UUID::fromText(text)) << text;
    }
    const auto random = UUID::random();
    EXPECT_EQ(UUID::fromText(random.text()), random);
    EXPECT_EQ(random.text()[14], '4');
    EXPECT_NE(UUID::random(), random);
}

} // namespace
} // namespace wumble
