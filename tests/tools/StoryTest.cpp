#include "tools/wumble-replay/Replay.h"

#include <cmath>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

namespace wumble::replay {
namespace {

namespace fs = std::filesystem;

std::string text(const Json& json) { return json.text().value_or("(unwritable)"); }

/// Where `actual` lacks something of `expected`; empty when nothing is missing. An object may hold more than is
/// expected of it, but for what is expected to be null, a list may not.
std::string difference(const Json& expected, const Json& actual, const std::string& place = "answer") {
    constexpr double tolerance = 1e-9;
    std::string found;
    const auto* members = expected.object();
    const auto* present = actual.object();
    const auto* elements = expected.array();
    const auto* others = actual.array();
    if (members != nullptr && present != nullptr) {
        for (auto member = members->begin(); member != members->end() && found.empty(); ++member) {
            const auto inner = place + "." + member->first;
            const auto other = present->find(member->first);
            found = other != present->end()          ? difference(member->second, other->second, inner)
                    : text(member->second) == "null" ? ""
                                                     : inner + " is missing";
        }
        return found;
    }
    if (elements != nullptr && others != nullptr && elements->size() == others->size()) {
        for (std::size_t i = 0; i < elements->size() && found.empty(); ++i) {
            found = difference((*elements)[i], (*others)[i], place + "[" + std::to_string(i) + "]");
        }
        return found;
    }
    const bool isNear =
        expected.number() && actual.number() && std::abs(*expected.number() - *actual.number()) <= tolerance;
    return isNear || text(expected) == text(actual)
               ? ""
               : place + " is " + text(actual) + " and not " + text(expected);
}

std::vector<std::string> lines(const fs::path& path) {
    std::ifstream file(path);
    EXPECT_TRUE(file) << path << " can't be read";
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line);
    }
    return lines;
}

void expectAsTold(const fs::path& story) {
    const auto expected = lines(fs::path(story).replace_extension(".expected.jsonl"));
    const auto told = lines(story);
    Replay replay;
    std::size_t answers = 0;
    for (std::size_t number = 1; number <= told.size(); ++number) {
        const auto answer = replay.answer(told[number - 1], number);
        if (!answer) {
            continue;
        }
        ASSERT_LT(answers, expected.size())
            << "line " << number << " is answered beyond what is expected: " << *answer;
        const auto wanted = parseJson(expected[answers++]);
        ASSERT_TRUE(wanted.value && wanted.value->object() != nullptr) << "expected line " << answers;
        EXPECT_EQ(difference(*wanted.value, *parseJson(*answer).value), "")
            << "line " << number << ": " << told[number - 1];
    }
    EXPECT_EQ(answers, expected.size());
}

TEST(Story, goesAsItIsTold) {
    int stories = 0;
    for (const auto& entry : fs::directory_iterator(STORIES_FOLDER)) {
        const auto name = entry.path().filename().string();
        if (name.ends_with(".jsonl") && !name.ends_with(".expected.jsonl")) {
            SCOPED_TRACE(name);
            expectAsTold(entry.path());
            ++stories;
        }
    }
    EXPECT_GT(stories, 0);
}

TEST(Story, comparesWhatIsExpectedAndPassesOverWhatIsMore) {
    struct Case {
        const char *expected, *actual, *difference;
    };
    const Case cases[] = {
        {R"({"a":{"b":[1,{"c":2}]}})", R"({"a":{"b":[1.0000000001,{"c":2,"d":3}],"e":4}})", ""},
        {R"({"a":{"b":1}})", R"({"a":{}})", "answer.a.b is missing"},
        {R"({"a":null})", "{}", ""},
        {R"({"a":null})", R"({"a":1})", "answer.a is 1 and not null"},
        {R"({"a":[{}]})", R"({"a":[{},{}]})", "answer.a is [{},{}] and not [{}]"},
        {R"({"a":[]})", R"({"a":{}})", "answer.a is {} and not []"},
        {R"({"a":1})", R"({"a":true})", "answer.a is true and not 1"},
        {R"({"a":[1],"b":1})", R"({"a":[1.00000001],"b":1})", "answer.a[0] is 1.00000001 and not 1"},
    };
    for (const auto& [expected, actual, found] : cases) {
        EXPECT_EQ(difference(*parseJson(expected).value, *parseJson(actual).value), found);
    }
}

} // namespace
} // namespace wumble::replay
