#include "Quietlark/Pet/WumbleAnimator.h"

#include "Quietlark/Pet/GestureMotion.h"
#include "tests/look/Drawn.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

using test::petOf;
using wumble::WumbleGesture;
using wumble::WumbleJelly;
using wumble::WumbleMood;

constexpr int moodCount = 17;

WumblePose poseOf(WumbleMood mood, double t, bool reduceMotion = false, wumble::Counter rests = 6) {
    return WumbleAnimator::pose(mood, petOf(wumble::WumbleBase::yuzu, rests), t, t, reduceMotion, false,
                                reduceMotion ? WumbleJelly::stiff : WumbleJelly::wumble);
}

void forEachMood(auto&& check) {
    for (int mood = 0; mood < moodCount; ++mood) {
        SCOPED_TRACE(mood);
        check(static_cast<WumbleMood>(mood));
    }
}

TEST(WumbleAnimator, everyMoodIsAliveAndNoneJumps) {
    constexpr double frame = 1.0 / 240;
    constexpr double largestStep = 2; ///< units of the box that the top may go in a frame
    const auto day = petOf(wumble::WumbleBase::yuzu);
    forEachMood([&](WumbleMood mood) {
        bool moved = false;
        auto before = SoftWumble::top(poseOf(mood, 0.5), day);
        for (double t = 0.5; t < 45; t += frame) {
            const auto now = SoftWumble::top(poseOf(mood, t), day);
            ASSERT_LT(std::hypot(now.x - before.x, now.y - before.y), largestStep) << t;
            moved = moved || std::abs(now.y - before.y) > 1e-6;
            before = now;
        }
        EXPECT_TRUE(moved);
    });
}

TEST(WumbleAnimator, reducedMotionIsStillButNotDead) {
    forEachMood([](WumbleMood mood) { EXPECT_EQ(poseOf(mood, 0, true), poseOf(mood, 7.3, true)); });
    EXPECT_TRUE(poseOf(WumbleMood::sleeping, 1, true).zzz);
    EXPECT_TRUE(poseOf(WumbleMood::celebrate, 1, true).sparkles);
    EXPECT_DOUBLE_EQ(poseOf(WumbleMood::pulled, 1, true).pull, 0.85);
}

TEST(WumbleAnimator, aClumpHasNoGesturesThatNeedPaws) {
    forEachMood([](WumbleMood mood) {
        for (double t = 0; t < 30; t += 0.1) {
            EXPECT_FALSE(needsPaws(poseOf(mood, t, false, 2).gesture)) << t;
        }
    });
    EXPECT_EQ(SoftWumble::motion(WumbleGesture::hop, 0.45, {}, 2), SoftWumble::Motion());
    EXPECT_NE(SoftWumble::motion(WumbleGesture::hop, 0.45, {}, 3), SoftWumble::Motion());
}

TEST(WumbleAnimator, aGestureBeginsAndEndsAtRest) {
    for (const auto gesture : wumble::allCases<WumbleGesture>()) {
        for (const double end : {0.0, 1.0}) {
            const auto motion = SoftWumble::motion(gesture, end, {}, 6);
            EXPECT_NEAR(motion.offset.x, 0, 1e-9) << enumText(gesture);
            EXPECT_NEAR(motion.offset.y, 0, 1e-9) << enumText(gesture);
            EXPECT_NEAR(std::remainder(motion.angle, 360), 0, 1e-9) << enumText(gesture);
            EXPECT_NEAR(motion.up, 1, 1e-9) << enumText(gesture);
            const auto paws = SoftWumble::paws(gesture, end);
            EXPECT_NEAR(paws.right.offset.y, 0, 1e-9) << enumText(gesture);
            EXPECT_NEAR(paws.left.offset.y, 0, 1e-9) << enumText(gesture);
        }
    }
}

TEST(WumbleAnimator, aSwingIsWidestAtThePeakOfItsGesture) {
    for (const auto gesture :
         {WumbleGesture::sway, WumbleGesture::tidy, WumbleGesture::giggle, WumbleGesture::dizzy}) {
        double widest = 0;
        for (double t = 0; t <= 1; t += 0.01) {
            widest = std::max(widest, std::abs(SoftWumble::motion(gesture, t, {}, 6).angle));
        }
        EXPECT_NEAR(SoftWumble::motion(gesture, peak(gesture), {}, 6).angle, widest, 0.1)
            << enumText(gesture);
    }
}

TEST(WumbleAnimator, squashKeepsTheVolume) {
    for (const auto gesture : wumble::allCases<WumbleGesture>()) {
        for (double t = 0; t <= 1; t += 0.05) {
            const auto motion = SoftWumble::motion(gesture, t, {}, 6);
            EXPECT_NEAR(motion.across * motion.across * motion.up, 1, 1e-9) << enumText(gesture);
        }
    }
}

TEST(WumbleAnimator, blinksComeEveryThreeToSevenSecondsAndUnevenly) {
    std::vector<double> starts;
    bool wasOpen = true;
    for (double t = 0; t < 120; t += 0.01) {
        const bool isOpen = WumbleAnimator::blink(t) == 0;
        if (wasOpen && !isOpen) {
            starts.push_back(t);
        }
        wasOpen = isOpen;
    }
    ASSERT_GT(starts.size(), 15U);
    int doubles = 0;
    for (std::size_t place = 1; place < starts.size(); ++place) {
        const double gap = starts[place] - starts[place - 1];
        doubles += gap < 1 ? 1 : 0;
        EXPECT_TRUE(gap < 1 || (gap >= 3 && gap <= 7)) << gap;
    }
    EXPECT_GT(doubles, 0);
    EXPECT_LT(doubles, static_cast<int>(starts.size()) / 4);
}

TEST(WumbleAnimator, aPullStretchesSoftlyHoldsAndBreathes) {
    EXPECT_DOUBLE_EQ(WumbleAnimator::pullAmount(0, false), 0);
    EXPECT_NEAR(WumbleAnimator::pullAmount(0.7, false), 1, 1e-9);
    EXPECT_NEAR(WumbleAnimator::pullAmount(0.7 + 0.8, false), 0.82, 1e-9);
    EXPECT_DOUBLE_EQ(WumbleAnimator::pullAmount(0, true), 0.85);
    EXPECT_DOUBLE_EQ(WumbleAnimator::letGo(0), 1);
    double lowest = 1;
    for (double t = 0; t < 1; t += 0.01) {
        lowest = std::min(lowest, WumbleAnimator::letGo(t));
    }
    EXPECT_LT(lowest, -0.1) << "it swings past its rest";
    EXPECT_NEAR(WumbleAnimator::letGo(1.6), 0, 0.01);
}

} // namespace
} // namespace quietlark
