#include "WumbleCore/Foundation/JsonCoding.h"
#include "WumbleCore/Life/WumbleLife.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

std::optional<WumbleLife> read(const std::string& text) {
    return JsonDecoder(DateForm::iso8601).decode<WumbleLife>(parseJson(text).value.value());
}

std::string written(const WumbleLife& life) { return *JsonEncoder(DateForm::iso8601).encode(life).text(); }

const std::string day =
    R"({"base":"kuri","day":"2026-03-09","rests":2,"skips":1,"spriteVersion":3,"traits":{"accessory":"halo","cheeks":"blush","eyes":"bean","keepsake":"daruma","mouth":"tiny-o","personality":"shy"}})";

std::string lifeWith(const std::string& stored, const std::string& more = "") {
    return R"({"days":{"2026-03-09":)" + stored + "}," + more + R"("name":"Momo"})";
}

std::string changed(std::string_view from, std::string_view to) {
    std::string copy = day;
    return copy.replace(copy.find(from), from.size(), to);
}

TEST(WumbleLifeFile, givesBackWhatWasWritten) {
    for (const char* more : {"", R"("greetedDay":"2026-03-09",)"}) {
        EXPECT_EQ(written(read(lifeWith(day, more)).value()), lifeWith(day, more));
    }
    WumbleLife life{.name = "", .announcedRecaps = {{"b", "a"}}, .seenRecaps = {std::vector<std::string>{}}};
    life.welcomed = false;
    EXPECT_EQ(written(life),
              R"({"announcedRecaps":["b","a"],"days":{},"name":"","seenRecaps":[],"welcomed":false})");
    EXPECT_EQ(read(written(life)), life);
    EXPECT_EQ(written({}), R"({"days":{},"name":"Wumble"})");
}

TEST(WumbleLifeFile, fillsADaysGapsTheSameWayAtEveryStart) {
    const auto whole = read(lifeWith(day)).value().days.at("2026-03-09");
    const auto with = [&](auto change) {
        auto copy = whole;
        change(copy);
        return copy;
    };
    struct Case {
        const char *from, *to;
        WumbleDay expected;
    };
    const auto gaps = WumbleTraits::seeded("days2026-03-09traits");
    const Case cases[] = {
        {"kuri", "durian", with([](auto& pet) { pet.base = WumbleBase::vanilla; })},
        {"tiny-o", "tinyO", whole},
        {R"("rests":2,)", "", with([](auto& pet) { pet.rests = 0; })},
        {R"("skips":1)", R"("skips":null)", with([](auto& pet) { pet.skips = 0; })},
        {R"("spriteVersion":3,)", "", with([](auto& pet) { pet.spriteVersion = 1; })},
        {R"("eyes":"bean",)", "", with([&](auto& pet) { pet.traits.eyes = gaps.eyes; })},
        {R"("halo")", "7", with([&](auto& pet) { pet.traits.accessory = gaps.accessory; })},
        {R"("shy")", R"("bold")", with([&](auto& pet) { pet.traits.personality = gaps.personality; })},
        {R"("traits")", R"("looks")",
         with([](auto& pet) { pet.traits = WumbleTraits::seeded("2026-03-09"); })},
    };
    for (const auto& [from, to, expected] : cases) {
        const auto life = read(lifeWith(changed(from, to)));
        ASSERT_TRUE(life) << from;
        EXPECT_EQ(life->days.at("2026-03-09"), expected) << from;
        EXPECT_EQ(read(written(*life)), life) << "once saved it stays so";
    }
}

TEST(WumbleLifeFile, isNoneWithoutWhatItNeedsOrWithAnotherType) {
    for (const std::string& text : {
             std::string("[]"),
             std::string(R"({"name":"Momo"})"),
             std::string(R"({"days":{}})"),
             std::string(R"({"days":[],"name":"Momo"})"),
             std::string(R"({"days":{},"name":null})"),
             lifeWith(day, R"("welcomed":1,)"),
             lifeWith(day, R"("seenRecaps":["a",1],)"),
             lifeWith("[]"),
             lifeWith(changed(R"("day":"2026-03-09",)", "")),
             lifeWith(changed(R"("base":"kuri",)", "")),
             lifeWith(changed(R"("kuri")", "7")),
             lifeWith(changed(R"("rests":2)", R"("rests":2.5)")),
             lifeWith(changed(R"("rests":2)", R"("rests":1e30)")),
             lifeWith(changed(R"("skips":1)", R"("skips":true)")),
             lifeWith(R"({"base":"kuri","day":"2026-03-09","traits":[]})"),
         }) {
        EXPECT_FALSE(read(text)) << text;
    }
    for (const char* more : {R"("welcomed":null,)", R"("later":{},)"}) {
        EXPECT_EQ(read(lifeWith(day, more)), read(lifeWith(day))) << more;
    }
}

} // namespace
} // namespace wumble
