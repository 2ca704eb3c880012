#include "Quietlark/Platform/Linux/Hosting/X11Struts.h"

#include <gtest/gtest.h>

namespace quietlark {

TEST(X11StrutsTest, aPanelTakesFromTheMonitorsAlongItsEdgeOnly) {
    struct Case {
        const char* what;
        std::vector<std::uint32_t> numbers;
        QRect monitor;
        QRect left;
    };
    const QSize root(3200, 2000);
    const QRect upper(0, 0, 1600, 900);
    const QRect lower(0, 900, 1600, 1100);
    const QRect right(1600, 0, 1600, 2000);
    const std::vector<Case> cases{
        {"nothing", {}, upper, upper},
        {"too few numbers", {0, 0, 30}, upper, upper},
        {"the short form goes along all of the edge", {0, 0, 30, 0}, right, right.adjusted(0, 30, 0, 0)},
        {"the long form along a part",
         {0, 0, 30, 0, 0, 0, 0, 0, 0, 1599, 0, 0},
         upper,
         upper.adjusted(0, 30, 0, 0)},
        {"and not beside it", {0, 0, 30, 0, 0, 0, 0, 0, 0, 1599, 0, 0}, right, right},
        {"to one column on the next monitor",
         {0, 0, 30, 0, 0, 0, 0, 0, 0, 1600, 0, 0},
         right,
         right.adjusted(0, 30, 0, 0)},
        {"at the top of the lower monitor, past the whole upper one",
         {0, 0, 930, 0, 0, 0, 0, 0, 0, 1599, 0, 0},
         lower,
         lower.adjusted(0, 30, 0, 0)},
        {"which leaves the upper one whole", {0, 0, 930, 0, 0, 0, 0, 0, 0, 1599, 0, 0}, upper, upper},
        {"at the bottom", {0, 0, 0, 40, 0, 0, 0, 0, 0, 0, 0, 1599}, lower, lower.adjusted(0, 0, 0, -40)},
        {"at the right edge", {0, 50, 0, 0, 0, 0, 0, 1999, 0, 0, 0, 0}, right, right.adjusted(0, 0, -50, 0)},
        {"at the left edge of the upper monitor",
         {60, 0, 0, 0, 0, 899, 0, 0, 0, 0, 0, 0},
         upper,
         upper.adjusted(60, 0, 0, 0)},
        {"a range that ends before it begins", {60, 0, 0, 0, 899, 0, 0, 0, 0, 0, 0, 0}, upper, upper},
        {"numbers beyond all screens", {4294967295U, 4294967295U, 4294967295U, 4294967295U}, upper, upper},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(withoutStruts(each.monitor, root, x11Struts(each.numbers)), each.left) << each.what;
    }
}

} // namespace quietlark
