#include "Quietlark/Pet/WumbleView.h"

#include "Quietlark/Pet/WumbleAnimator.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "tests/look/Drawn.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <gtest/gtest.h>

namespace quietlark {
namespace {

using test::petOf;
using wumble::WumbleBase;
using wumble::WumbleGesture;
using wumble::WumbleMood;

/// A view whose time and chances are the test's.
struct Stage {
    explicit Stage(const wumble::WumbleDay& day = petOf(WumbleBase::yuzu)) : view(day) {
        view.setClock({.now = [this] { return now; }});
        view.setRandom([this](std::uint64_t below) { return choice % below; });
        view.setFollowsPointer(false);
        view.resize(100, 100);
    }

    ~Stage() { WumbleView::onPoke = nullptr; }

    void mouse(QEvent::Type type, QPointF at) {
        const bool releases = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, at, Qt::LeftButton, releases ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &event);
    }

    double now = 0;
    std::uint64_t choice = 0;
    WumbleView view;
};

TEST(WumbleView, theSameTimeGivesTheSamePoseAtAnyFrameRate) {
    Stage slow;
    Stage fast;
    for (auto* stage : {&slow, &fast}) {
        stage->view.setMood(WumbleMood::celebrate);
    }
    for (fast.now = 0; fast.now < 2.5; fast.now += 1.0 / 144) {
        fast.view.pose(fast.now);
    }
    for (const double moment : {2.5, 2.503, 2.6}) {
        EXPECT_EQ(slow.view.pose(moment), fast.view.pose(moment));
    }
}

TEST(WumbleView, theTopLagsBehindAHopAndComesToRest) {
    Stage stage;
    stage.view.setCalm(true);
    stage.view.react(WumbleGesture::hop);
    double most = 0;
    for (double t = 0; t < 1.5; t += 1.0 / 60) {
        most = std::max(most, std::abs(stage.view.pose(t).sag));
    }
    EXPECT_GT(most, 4);
    EXPECT_LT(most, 12 + 8);
    EXPECT_EQ(stage.view.pose(4).gesture, WumbleGesture::still);
}

TEST(WumbleView, aClickBringsAnotherSillyGestureEachTime) {
    Stage stage;
    std::vector<WumbleGesture> poked;
    WumbleView::onPoke = [&](WumbleGesture gesture) { poked.push_back(gesture); };
    for (int click = 0; click < 4; ++click) {
        stage.mouse(QEvent::MouseButtonPress, {50, 50});
        stage.mouse(QEvent::MouseButtonRelease, {50, 50});
    }
    EXPECT_EQ(poked, (std::vector{WumbleGesture::spin, WumbleGesture::flop, WumbleGesture::spin,
                                  WumbleGesture::flop}));
    stage.now = 0.5;
    EXPECT_EQ(stage.view.pose(0.5).gesture, WumbleGesture::flop);
}

TEST(WumbleView, aClumpIsPokedWithoutPaws) {
    Stage stage(petOf(WumbleBase::yuzu, 2));
    std::vector<WumbleGesture> poked;
    WumbleView::onPoke = [&](WumbleGesture gesture) { poked.push_back(gesture); };
    for (stage.choice = 0; stage.choice < 12; ++stage.choice) {
        stage.view.poke();
    }
    for (const auto gesture : poked) {
        EXPECT_FALSE(needsPaws(gesture)) << enumText(gesture);
    }
    stage.view.react(WumbleGesture::wave);
    EXPECT_NE(stage.view.pose(0.3).gesture, WumbleGesture::wave);
}

TEST(WumbleView, aDragStretchesItAndLettingGoSwingsBack) {
    Stage stage;
    bool poked = false;
    WumbleView::onPoke = [&](WumbleGesture) { poked = true; };
    stage.mouse(QEvent::MouseButtonPress, {50, 50});
    stage.mouse(QEvent::MouseMove, {110, 50});
    EXPECT_GT(stage.view.pose(0).pull, 0.5);
    stage.mouse(QEvent::MouseButtonRelease, {110, 50});
    EXPECT_FALSE(poked);
    double lowest = 1;
    for (double t = 0; t < 1.5; t += 1.0 / 60) {
        lowest = std::min(lowest, stage.view.pose(t).pull);
    }
    EXPECT_LT(lowest, -0.05);
    EXPECT_DOUBLE_EQ(stage.view.pose(3).pull, 0);
}

TEST(WumbleView, keysPokeToo) {
    Stage stage;
    int pokes = 0;
    WumbleView::onPoke = [&](WumbleGesture) { ++pokes; };
    for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_A}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&stage.view, &press);
    }
    EXPECT_EQ(pokes, 2);
}

TEST(WumbleView, aPetThatIsNotPokableAnswersNothing) {
    Stage stage;
    bool poked = false;
    WumbleView::onPoke = [&](WumbleGesture) { poked = true; };
    stage.view.setPokable(false);
    stage.mouse(QEvent::MouseButtonPress, {50, 50});
    stage.mouse(QEvent::MouseButtonRelease, {50, 50});
    EXPECT_FALSE(poked);
}

TEST(WumbleView, itGazesWhereItIsTold) {
    Stage stage;
    stage.view.setCalm(true);
    stage.view.setGaze(wumble::Point{1, 0.5});
    const auto pose = stage.view.pose(1);
    EXPECT_DOUBLE_EQ(pose.look, 1);
    EXPECT_DOUBLE_EQ(pose.lookY, 0.4);
    EXPECT_DOUBLE_EQ(pose.lean, 0.5);
    EXPECT_NEAR(pose.sway, 0.5 * 12, 0.5);
    stage.view.setAppearance({.reduceMotion = true});
    EXPECT_DOUBLE_EQ(stage.view.pose(1).look, 1);
}

TEST(WumbleView, withReducedMotionItStandsStillButForItsFace) {
    Stage stage;
    stage.view.setAppearance({.reduceMotion = true});
    EXPECT_FALSE(stage.view.isMoving(2));
    EXPECT_EQ(stage.view.pose(2), stage.view.pose(4.7));
    auto blinking = stage.view.pose(1.4);
    EXPECT_GT(blinking.lids, 0.5);
    EXPECT_TRUE(stage.view.isMoving(1.4));
    blinking.lids = 0;
    EXPECT_EQ(blinking, stage.view.pose(2));
    stage.view.react(WumbleGesture::giggle);
    EXPECT_TRUE(stage.view.isMoving(0.5));
    EXPECT_EQ(stage.view.pose(0.5).gesture, WumbleGesture::still);
    EXPECT_NE(stage.view.pose(0.5).face, stage.view.pose(3).face);
    EXPECT_FALSE(stage.view.isMoving(2));
}

TEST(WumbleView, aChangeOfTheAppearanceAroundItReachesIt) {
    QWidget page;
    WumbleView view(petOf(WumbleBase::yuzu), &page);
    double now = 0;
    view.setClock({.now = [&now] { return now; }});
    view.resize(100, 100);
    const QImage light = view.grab().toImage();
    setAppearance(page, {.dark = true});
    EXPECT_GT(test::difference(view.grab().toImage(), light), 0.5);
    setAppearance(page, {.reduceMotion = true});
    EXPECT_FALSE(view.isMoving(2));
    setAppearance(page, {});
    EXPECT_TRUE(view.isMoving(2));
}

TEST(WumbleView, itLooksToThePointerWhereThatIsTold) {
    Stage stage;
    stage.view.setCalm(true);
    stage.view.setFollowsPointer(true);
    stage.view.show();
    EXPECT_DOUBLE_EQ(stage.view.pose(2).look, 0);
    WumbleView::desktopPointer = [&] {
        return std::optional(QPointF(stage.view.mapToGlobal(QPoint(400, 50))));
    };
    EXPECT_GT(stage.view.pose(2.1).look, 0.7);
    WumbleView::desktopPointer = [] { return std::optional<QPointF>(); };
    EXPECT_DOUBLE_EQ(stage.view.pose(2.2).look, 0);
    WumbleView::desktopPointer = nullptr;
}

TEST(WumbleView, itsNameSaysWhichOneItIs) {
    auto day = petOf(WumbleBase::blackSesame);
    day.traits.accessory = wumble::WumbleAccessory::strawHat;
    day.traits.keepsake = wumble::WumbleKeepsake::tea;
    WumbleView view(day);
    EXPECT_EQ(view.accessibleName(),
              QStringLiteral("Wumble, black sesame pet, with a straw hat and a cup of tea"));
    view.setFamilyName(QStringLiteral("Momo"));
    view.setDay(petOf(WumbleBase::sakura, 1));
    EXPECT_EQ(view.accessibleName(), QStringLiteral("Momo, sakura clump"));
}

TEST(JellyMemory, aClockThatRanBackBeginsAnew) {
    JellyMemory memory;
    EXPECT_EQ(memory.pointer(1), Look());
    memory.note({.x = 1}, 1);
    memory.note({.x = 0}, 2);
    EXPECT_EQ(memory.pointer(1.25), (Look{.x = 0.75}));
    EXPECT_EQ(memory.pointer(0), (Look{.x = 1}));
    EXPECT_EQ(memory.pointer(9), (Look{.x = 0}));
    memory.note({.x = 0.5}, 1.5);
    EXPECT_EQ(memory.pointer(9), (Look{.x = 0.5}));
    EXPECT_EQ(memory.pointer(0), (Look{.x = 0.5}));
}

TEST(JellyMemory, keepsAtLeastTwoSecondsOfLooks) {
    JellyMemory memory;
    for (int frame = 0; frame < 1000; ++frame) {
        memory.note({.x = frame / 1000.0}, frame / 60.0);
    }
    const double newest = 999 / 60.0;
    EXPECT_NEAR(memory.pointer(newest - 2).x, 0.879, 0.001);
}

TEST(JellyMemory, anotherMoodForgetsTheOldSwing) {
    JellyMemory memory;
    memory.keep({});
    memory.tops[3] = {1, 2};
    memory.keep({});
    EXPECT_EQ(memory.tops.size(), 1U);
    memory.keep({.mood = WumbleMood::sleeping});
    EXPECT_TRUE(memory.tops.empty());
}

} // namespace
} // namespace quietlark
