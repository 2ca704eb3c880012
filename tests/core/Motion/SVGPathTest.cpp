#include "WumbleCore/Motion/SVGPath.h"
#include "WumbleCore/Foundation/Match.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

namespace wumble::SVGPath {
namespace {

std::string text(Point point) {
    std::ostringstream text;
    text << " " << point.x << "," << point.y;
    return text.str();
}

/// "M 1,1 L 3,3"
std::string text(const Path& path) {
    std::string all;
    for (const auto& segment : path) {
        all += match(
            segment, [](const segment::Move& move) { return " M" + text(move.to); },
            [](const segment::Line& line) { return " L" + text(line.to); },
            [](const segment::Cubic& curve) {
                return " C" + text(curve.control1) + text(curve.control2) + text(curve.to);
            },
            [](const segment::Quadratic& curve) { return " Q" + text(curve.control) + text(curve.to); },
            [](segment::Close) { return std::string(" Z"); });
    }
    return all.empty() ? all : all.substr(1);
}

struct Case {
    const char* string;
    const char* path;
};

void expectPaths(std::initializer_list<Case> cases) {
    for (const auto& [string, path] : cases) {
        EXPECT_EQ(text(parse(string)), path) << string;
    }
}

TEST(SVGPath, readsNumbersThatTouch) {
    struct Numbers {
        const char* string;
        std::vector<double> numbers;
    };
    const Numbers cases[] = {
        {"-5-5", {-5, -5}},
        {".5.5", {0.5, 0.5}},
        {"1.5.5", {1.5, 0.5}},
        {"1e2,1E-2 1e+1", {100, 0.01, 10}},
        {"1e2-3", {100, -3}},
        {"+7 5. -.25", {7, 5, -0.25}},
        {"--5", {-5}},
        {"+-5", {-5}},
        {"- + . -. e E", {}},
        {"1e 2", {2}},
        {"1e2e3 1e2.5 4", {4}},
        {"1e999 -1e999 1e-999 2", {0, 2}},
        {"\xc3\xa9 1;2", {1, 2}},
    };
    for (const auto& [string, numbers] : cases) {
        const std::vector<Token> tokens(numbers.begin(), numbers.end());
        EXPECT_EQ(tokenize(string), tokens) << string;
    }
    EXPECT_EQ(tokenize("M1eL"), (std::vector<Token>{Command{'M'}, Command{'L'}}));
}

TEST(SVGPath, repeatsACommandForFurtherGroups) {
    expectPaths({{"M1 1 2 2 3 3", "M 1,1 L 2,2 L 3,3"},
                 {"m1 1 2 2", "M 1,1 L 3,3"},
                 {"M1 1h2 3v4H0V0 9", "M 1,1 L 3,1 L 6,1 L 6,5 L 0,5 L 0,0 L 0,9"},
                 {"M1 1q1 1 2 0 1 1 2 0", "M 1,1 Q 2,2 3,1 Q 4,2 5,1"}});
}

TEST(SVGPath, carriesCurvesOnWithoutABend) {
    expectPaths({{"M0 0C0 1 1 1 1 0S2-1 2 0s1 1 1 0", "M 0,0 C 0,1 1,1 1,0 C 1,-1 2,-1 2,0 C 2,1 3,1 3,0"},
                 {"M0 0L1 1S2 2 3 3", "M 0,0 L 1,1 C 1,1 2,2 3,3"},
                 {"M0 0Q1 1 2 0T4 0t2 0", "M 0,0 Q 1,1 2,0 Q 3,-1 4,0 Q 5,1 6,0"},
                 {"M1 1T2 2T3 1", "M 1,1 Q 1,1 2,2 Q 3,3 3,1"},
                 // Only a curve of the same kind, and the one just before, is looked back on.
                 {"M0 0Q1 1 2 0S3 3 4 0", "M 0,0 Q 1,1 2,0 C 2,0 3,3 4,0"},
                 {"M0 0C0 1 1 1 1 0ZS2 2 3 3", "M 0,0 C 0,1 1,1 1,0 Z C 0,0 2,2 3,3"},
                 {"M0 0C0 1 1 1 1 0 A9 9 S2-1 2 0", "M 0,0 C 0,1 1,1 1,0 C 1,-1 2,-1 2,0"}});
}

TEST(SVGPath, closesOnceAndGoesOnFromTheStart) {
    expectPaths({{"M1 1L2 2Zl1 0", "M 1,1 L 2,2 Z L 2,1"},
                 {"M1 1L2 2zZz", "M 1,1 L 2,2 Z"},
                 {"M1 1L2 2Z7 7 8 8l1 0z", "M 1,1 L 2,2 Z L 2,1 Z"},
                 {"Z", ""},
                 {"M5 5Z", "M 5,5"},
                 {"M1 1L2 2M5 5Zl1 1", "M 1,1 L 2,2 M 5,5 L 6,6"},
                 {"l1 1l1 0zl2 2", "L 1,1 L 2,1 Z L 2,2"}});
}

TEST(SVGPath, passesOverWhatItCannotRead) {
    expectPaths({{"", ""},
                 {"1 2 3", ""},
                 {"M1 1L2", "M 1,1"},
                 {"M1 1L2 M3 4", "M 1,1 M 3,4"},
                 {"M1 1C1 2 3 4 5L6 6", "M 1,1 L 6,6"},
                 {"M1 1A5 5 0 0 1 9 9L2 2", "M 1,1 L 2,2"},
                 {"M1 1L2 2 3l4 4", "M 1,1 L 2,2 L 6,6"}});
}

TEST(SVGPath, keepsCoordinatesFinite) {
    const auto path = parse("M1e308 1e308l1e308-1e308c1e308 1e308 1e308 1e308 1e308 1e308s-1e308 0-1e308 0"
                            "q-1e308 0 0 0t1e308 1e308t1e308 1e308");
    ASSERT_EQ(path.size(), 7);
    const auto& curve = std::get<segment::Quadratic>(path.back());
    for (const double value : {curve.control.x, curve.control.y, curve.to.x, curve.to.y}) {
        EXPECT_TRUE(std::isfinite(value));
    }
}

} // namespace
} // namespace wumble::SVGPath
