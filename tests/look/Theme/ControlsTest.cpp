#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Controls/IconButton.h"
#include "Quietlark/Theme/Controls/Segments.h"
#include "Quietlark/Theme/Controls/StickerButton.h"
#include "Quietlark/Theme/Controls/StickerSlider.h"
#include "Quietlark/Theme/Controls/StickerSwitch.h"

#include "tests/look/Drawn.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <gtest/gtest.h>

namespace quietlark {
namespace {

using Kind = StickerButton::Kind;

void press(QWidget& widget, Qt::Key key) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

void click(QWidget& widget, QPointF at) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool releases = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, at, Qt::LeftButton, releases ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

/// A page without motion, with one of each thing that can be pressed.
struct Page : QWidget {
    Page() {
        setAppearance(*this, {.reduceMotion = true});
        int top = 0;
        for (QAbstractButton* button : buttons) {
            button->setGeometry(QRect({0, top}, button->sizeHint()));
            top += button->height();
        }
    }

    StickerButton start{QStringLiteral("Start break"), Kind::primary, this};
    StickerButton snooze{QStringLiteral("Snooze"), Kind::plain, this};
    StickerButton skip{QStringLiteral("Skip"), Kind::quiet, this};
    IconButton close{Symbol::close, QStringLiteral("Close"), this};
    StickerSwitch lock{QStringLiteral("Lock"), this};
    QList<PressControl*> buttons{&start, &snooze, &skip, &close, &lock};
};

TEST(Controls, everyButtonIsPressedByKeyboardAndPointerOnItsFaceAlone) {
    Page page;
    for (PressControl* button : page.buttons) {
        int clicks = 0;
        QObject::connect(button, &QAbstractButton::clicked, button, [&] { ++clicks; });
        press(*button, Qt::Key_Space);
        press(*button, Qt::Key_Return);
        press(*button, Qt::Key_Enter);
        EXPECT_EQ(clicks, 3) << button->accessibleName().toStdString();
        click(*button, QRectF(button->rect()).center());
        click(*button, {1, 1});
        EXPECT_EQ(clicks, 4) << button->accessibleName().toStdString();
        button->setEnabled(false);
        press(*button, Qt::Key_Return);
        click(*button, QRectF(button->rect()).center());
        EXPECT_EQ(clicks, 4) << button->accessibleName().toStdString();
    }
}

TEST(Controls, theKeyboardsFocusIsSeenAndThePointersIsNot) {
    for (const bool dark : {false, true}) {
        Page page;
        setAppearance(page, {.dark = dark, .reduceMotion = true});
        page.show();
        QApplication::setActiveWindow(&page);
        for (PressControl* button : page.buttons) {
            const QImage without = button->grab().toImage();
            button->setFocus(Qt::MouseFocusReason);
            EXPECT_EQ(button->grab().toImage(), without) << button->accessibleName().toStdString();
            button->clearFocus();
            button->setFocus(Qt::TabFocusReason);
            EXPECT_GT(test::difference(button->grab().toImage(), without), 1)
                << button->accessibleName().toStdString();
            button->clearFocus();
        }
    }
}

TEST(Controls, aScreenReaderHearsWhatAButtonSaysAndCanPressIt) {
    StickerButton button(QStringLiteral("Wait for Salt & Vinegar"), Kind::plain);
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&button);
    ASSERT_NE(heard, nullptr);
    EXPECT_EQ(heard->role(), QAccessible::Button);
    EXPECT_EQ(heard->text(QAccessible::Name), button.text());
    EXPECT_TRUE(button.shortcut().isEmpty());
    button.setText(QStringLiteral("Wait"));
    EXPECT_EQ(heard->text(QAccessible::Name), QStringLiteral("Wait"));
    button.setAccessibleName(QStringLiteral("Wait for the call"));
    button.setText(QStringLiteral("Wait!"));
    EXPECT_EQ(heard->text(QAccessible::Name), QStringLiteral("Wait for the call"));
    int clicks = 0;
    QObject::connect(&button, &QAbstractButton::clicked, &button, [&] { ++clicks; });
    heard->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    while (clicks == 0) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    StickerSwitch lock(QStringLiteral("Lock"));
    lock.setChecked(true);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&lock)->state().checked);
}

TEST(Controls, aNewAppearanceIsDrawnWithoutMoreAdo) {
    StickerButton button(QStringLiteral("Skip"), Kind::plain);
    button.resize(button.sizeHint());
    const QSize usual = button.sizeHint();
    const QImage light = button.grab().toImage();
    setAppearance(button, {.dark = true});
    EXPECT_GT(test::difference(button.grab().toImage(), light), 10);
    setAppearance(button, {.textScale = 1.5});
    EXPECT_GT(button.sizeHint().width(), usual.width());
    EXPECT_GT(button.sizeHint().height(), usual.height());
}

TEST(Controls, aButtonWithAVeryLongNameStaysOnTheScreen) {
    const StickerButton button(QString(200, u'W'), Kind::plain);
    EXPECT_LT(button.sizeHint().width(), 500);
    EXPECT_LT(button.minimumSizeHint().width(), 120);
}

TEST(Segments, theArrowKeysChooseAndOnlyThePersonIsReported) {
    Segments segments;
    QList<int> chosen;
    segments.chosen = [&](int place) { chosen.append(place); };
    segments.setChoices({QStringLiteral("Light"), QStringLiteral("Dark"), QStringLiteral("System")});
    segments.setCurrent(1);
    segments.setCurrent(7);
    EXPECT_EQ(segments.current(), 1);
    EXPECT_TRUE(chosen.isEmpty());
    segments.show();
    QApplication::setActiveWindow(&segments);
    const auto choices = segments.findChildren<QAbstractButton*>();
    choices[1]->setFocus(Qt::TabFocusReason);
    press(*choices[1], Qt::Key_Right);
    EXPECT_EQ(segments.current(), 2);
    click(*choices[0], QRectF(choices[0]->rect()).center());
    EXPECT_EQ(segments.current(), 0);
    EXPECT_EQ(chosen, (QList<int>{2, 0}));
}

TEST(StickerSlider, keysAndPointerReachBothEnds) {
    StickerSlider slider(QStringLiteral("Volume"));
    slider.setRange(0, 100);
    slider.resize(200, 36);
    press(slider, Qt::Key_End);
    EXPECT_EQ(slider.value(), 100);
    press(slider, Qt::Key_Left);
    EXPECT_EQ(slider.value(), 99);
    click(slider, {1, 18});
    EXPECT_EQ(slider.value(), 0);
    click(slider, {100, 18});
    EXPECT_NEAR(slider.value(), 50, 1);
    click(slider, {199, 18});
    EXPECT_EQ(slider.value(), 100);
}

} // namespace
} // namespace quietlark
