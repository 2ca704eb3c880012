#include "Quietlark/Surfaces/Notes/NoteStage.h"

#include "tests/surfaces/Notes/NotesFixture.h"

#include <QPainter>

namespace quietlark::test {

namespace {

const QRectF cardPlace(NoteStage::margin, NoteStage::margin, 100, 60);
const QColor ink(255, 0, 128);

/// A content that is nothing but its colour.
struct Inked final : QWidget {
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), ink); }
};

struct NoteStageTest : NotesFixture {
    RecordedSurface& showNote(wumble::NoteEntrance entrance = wumble::NoteEntrance::slap) {
        presence = std::make_shared<ObservedPresence>(
            wumble::NotePresence{.arrived = driver.loop.now(), .entrance = entrance});
        surface = hostNote(context, std::make_unique<Inked>(), presence,
                           {.card = cardPlace, .sizePet = [this](double scale) { petScale = scale; }},
                           {.identifier = "note"});
        surface->setFrame({0, 0, 128, 88});
        surface->setMapped(true);
        return *host.top("note");
    }
    NoteStage& stage() { return dynamic_cast<NoteStage&>(surface->view()); }

    void leave() {
        auto leaving = presence->value();
        leaving.leave(driver.loop.now());
        presence->setValue(leaving);
    }

    /// Where the content is seen, in the stage.
    QRect seen() {
        QImage image(stage().size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        stage().render(&image, {}, {}, QWidget::DrawChildren);
        QRect found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == ink) {
                    found |= QRect(x, y, 1, 1);
                }
            }
        }
        return found;
    }

    std::shared_ptr<ObservedPresence> presence;
    std::unique_ptr<HostedSurface> surface;
    double petScale = 0;
};

TEST_F(NoteStageTest, aNoteComesDownAndStandsWhereItsContentLives) {
    showNote();
    EXPECT_TRUE(stage().isMoving());
    EXPECT_LT(petScale, 1);
    driver.loop.advance(0.06);
    EXPECT_LT(seen().top(), cardPlace.top());
    EXPECT_EQ(QRectF(stage().content().geometry()), cardPlace)
        << "the pointer finds it in place all the time";
    driver.loop.advance(2);
    EXPECT_EQ(QRectF(seen()), cardPlace);
}

TEST_F(NoteStageTest, withReducedMotionNothingMovesOrScales) {
    appearance = Appearance{.reduceMotion = true};
    for (const auto entrance :
         {wumble::NoteEntrance::slap, wumble::NoteEntrance::settle, wumble::NoteEntrance::eye}) {
        showNote(entrance);
        driver.loop.advance(0.06);
        EXPECT_LT(stage().pose().opacity, 1);
        driver.loop.advance(0.3);
        EXPECT_EQ(QRectF(seen()), cardPlace);
        leave();
        driver.loop.advance(0.05);
        wumble::NotePose faded;
        faded.opacity = stage().pose().opacity;
        EXPECT_EQ(stage().pose(), faded);
        EXPECT_LT(faded.opacity, 1);
    }
}

TEST_F(NoteStageTest, leavingMakesARestingNoteMoveAgain) {
    showNote();
    driver.loop.advance(2);
    leave();
    EXPECT_TRUE(stage().isMoving());
    driver.loop.advance(0.5);
    EXPECT_TRUE(seen().isEmpty()) << "what left isn't there";
}

TEST_F(NoteStageTest, aClockThatIsSetBackDoesNotMakeItMoveForAnHour) {
    showNote();
    driver.loop.setClock(driver.loop.now() - 3600);
    presence->setValue(wumble::NotePresence{presence->value().arrived, true});
    EXPECT_FALSE(stage().isMoving());
}

TEST_F(NoteStageTest, whereTheDesktopCannotBlendItIsWholeOrNotThere) {
    host.canBlend = false;
    RecordedSurface& carrier = showNote();
    EXPECT_EQ(carrier.opacity, 0);
    EXPECT_EQ(stage().pose(), wumble::NotePose{}) << "the carrier does all of it";
    EXPECT_TRUE(carrier.outline.contains(QPoint(64, 44)));
    EXPECT_TRUE(carrier.outline.contains(QPoint(100, 76))) << "its shadow";
    EXPECT_FALSE(carrier.outline.contains(QPoint(2, 2)));
    EXPECT_FALSE(carrier.outline.contains(QPoint(14, 14))) << "its corners are round";
}

TEST_F(NoteStageTest, itTakesOnAnotherLook) {
    showNote();
    appearance = Appearance{.dark = true};
    EXPECT_TRUE(appearanceOf(stage().content()).dark);
}

} // namespace

} // namespace quietlark::test
