#include "WumbleCore/Engine/Limit.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

constexpr Counter most = std::numeric_limits<Counter>::max();
constexpr Counter least = std::numeric_limits<Counter>::min();

TEST(Limit, allowsWhatIsLeftAndNeverCountsBelowNothing) {
    struct Case {
        Limit limit;
        Counter used;
        bool allows;
        std::optional<Counter> remaining;
    };
    for (const auto& [limit, used, allows, remaining] :
         {Case{Limit(), most, true, {}}, Case{Limit::unlimited(), most, true, {}},
          Case{Limit::count(3), 2, true, 1}, Case{Limit::count(3), 3, false, 0},
          Case{Limit::count(3), 4, false, 0}, Case{Limit::count(-1), 0, false, 0},
          Case{Limit::count(least), most, false, 0}, Case{Limit::count(most), least, true, most}}) {
        EXPECT_EQ(limit.allows(used), allows);
        EXPECT_EQ(limit.remaining(used), remaining);
    }
}

TEST(Limit, isReadFromAnObjectWithItsCaseAsTheOnlyKey) {
    EXPECT_EQ(Limit::count(most).toJson().text(), R"({"count":{"_0":9223372036854775807}})");
    EXPECT_EQ(Limit::unlimited().toJson().text(), R"({"unlimited":{}})");
    for (const char* text : {"3", "{}", R"({"count":3})", R"({"count":{}})", R"({"count":{"_0":1.5}})",
                             R"({"count":{"_0":true}})", R"({"few":{}})", R"({"unlimited":null})",
                             R"({"count":{"_0":2},"unlimited":{}})"}) {
        EXPECT_FALSE(Limit::fromJson(*parseJson(text).value)) << text;
    }
}

} // namespace
} // namespace wumble
