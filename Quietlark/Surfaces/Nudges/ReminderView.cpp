#include "Quietlark/Surfaces/Nudges/ReminderView.h"

#include "Quietlark/Surfaces/Nudges/Eyelids.h"
#include "Quietlark/Surfaces/Nudges/FollowAlongView.h"
#include "Quietlark/Surfaces/Nudges/NudgeGeometry.h"
#include "Quietlark/Surfaces/Nudges/Tide.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Controls/IconButton.h"
#include "Quietlark/Theme/Sizes.h"
#include "Quietlark/Theme/Sticker.h"
#include "WumbleCore/Motion/Choreography.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>

namespace quietlark {

namespace {

namespace Choreography = wumble::Choreography;

/// Places on the card at scale 1.
constexpr QRectF petPlace{8, 9, 122, 122};
constexpr QRectF wordsPlace{136, 14, 188, 118};
constexpr QRectF closePlace{7, 7, 24, 24};
constexpr double outline = 1.5;

constexpr double quickFrames = 60; ///< a second
constexpr double calmFrames = 30;  ///< where all that moves is breath and water

constexpr double blinkReach =
    0.26;                       ///< how far the card's lids follow the pet's: words and pet stay to be seen
constexpr double waveEvery = 7; ///< seconds of one round of the tide's waves
constexpr double floatUp = 5;   ///< points that a full tide lifts the pet

template <class Exercise> bool isExercise(const wumble::Toast& toast) {
    return toast.followAlong && std::holds_alternative<Exercise>(*toast.followAlong);
}

/// Up to the middle of the outline: what fills it doesn't show outside.
QPainterPath cardShape(double line) {
    const double inside = line / 2;
    QPainterPath path;
    path.addRoundedRect(QRectF({}, NudgeGeometry::cardSize).adjusted(inside, inside, -inside, -inside),
                        Radius::card - inside, Radius::card - inside);
    return path;
}

QRectF scaled(const QRectF& rect, double scale) { return {rect.topLeft() * scale, rect.size() * scale}; }

} // namespace

ReminderView::ReminderView(const wumble::Toast& toast, const wumble::WumbleDay& day, double scale,
                           MainLoop& loop, wumble::Date appeared)
    : toast_(toast), day_(day), scale_(scale), loop_(loop), appeared_(appeared), pet_(day),
      frames_(loop, [this](double) { frame(); }) {
    resize((NudgeGeometry::cardSize * scale).toSize());
    setAccessibleName(QString::fromStdString(toast.title));
    pet_.setMood(toast.mood);
    pet_.setCalm(true);
    pet_.setFollowsPointer(false);
    pet_.setClock({.now = [this] { return elapsed(); }});
    if (toast.followAlong) {
        follow_.emplace(*toast.followAlong);
        pet_.react(wumble::WumbleGesture::nod, follow_->end() - elapsed());
    }
    if (toast.closable) {
        auto* control = new IconButton(Symbol::close, QStringLiteral("Close"), this);
        control->setIconSize(IconSize::small * scale);
        close_ = control;
        close_->setGeometry(scaled(closePlace, scale).toRect());
        close_->hide();
        connect(close_, &QAbstractButton::clicked, this, [this] { close(); });
    }
}

ReminderView::~ReminderView() = default;

void ReminderView::setReached(bool reached) {
    if (close_ != nullptr) {
        close_->setVisible(reached);
        update();
    }
}

void ReminderView::setPetScale(double scale) {
    if (petScale_ != scale) {
        petScale_ = scale;
        update();
    }
}

std::optional<QRectF> ReminderView::closeFrame() const {
    return close_ == nullptr ? std::nullopt : std::optional(QRectF(close_->geometry()));
}

void ReminderView::close() {
    if (onClose_) {
        onClose_();
    }
}

/// A hanging card is drawn beside where it is, and only what is meant for the close control comes through to it.
void ReminderView::mousePressEvent(QMouseEvent* event) {
    if (close_ != nullptr && event->button() == Qt::LeftButton) {
        close();
    }
}

bool ReminderView::isStill() const { return appearanceOf(*this).reduceMotion; }

void ReminderView::showEvent(QShowEvent*) {
    if (isStill()) {
        return awaitChange();
    }
    frames_.start(isExercise<wumble::Toast::Breaths>(toast_) ? calmFrames : quickFrames);
}

void ReminderView::hideEvent(QHideEvent*) { frames_.stop(); }

void ReminderView::frame() {
    update();
    if (isStill()) {
        frames_.stop();
        awaitChange();
    }
}

/// Without motion only the words change, and each change is waited for.
void ReminderView::awaitChange() {
    const auto next = follow_ ? follow_->nextChange(elapsed()) : std::nullopt;
    if (!next) {
        return;
    }
    loop_.after(*next - elapsed(), [view = QPointer(this)] {
        if (view && view->isVisible() && view->isStill()) {
            view->update();
            view->awaitChange();
        }
    });
}

void ReminderView::paintEvent(QPaintEvent*) {
    const Appearance appearance = appearanceOf(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale_, scale_);
    const QRectF card({}, NudgeGeometry::cardSize);
    const double line = outlineWidth(outline, appearance);
    painter.setClipPath(cardShape(line));
    painter.fillRect(card, colour(Surface::card, appearance));
    if (isExercise<wumble::Toast::Breaths>(toast_)) {
        const double phase = appearance.reduceMotion ? 0 : elapsed() / waveEvery;
        TideFill{Choreography::breathFill(elapsed()), phase}.draw(painter, card, appearance);
    }
    drawPet(painter, appearance);
    drawWords(painter, appearance);
    if (isExercise<wumble::Toast::Blinks>(toast_) && !appearance.reduceMotion) {
        Eyelids{card, blinkReach * Choreography::blinkShut(elapsed())}.draw(
            painter, quietlark::palette(day_.base), appearance);
    }
    painter.setClipping(false);
    if (close_ != nullptr && close_->isVisible()) {
        drawSticker(painter, closePlace, {.radius = closePlace.width() / 2, .lift = Lift::flat}, appearance);
    }
    painter.setPen(QPen(colour(Role::line, appearance), line));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(cardShape(line));
}

void ReminderView::drawPet(QPainter& painter, const Appearance& appearance) {
    pet_.setAppearance(appearance);
    painter.save();
    // It stands on the floor of its place: growing, it grows upwards.
    painter.translate(petPlace.center().x(), petPlace.bottom());
    painter.scale(petScale_, petScale_);
    painter.translate(-petPlace.center().x(), -petPlace.bottom());
    if (isExercise<wumble::Toast::Breaths>(toast_) && !appearance.reduceMotion) {
        painter.translate(0, -floatUp * Choreography::breathFill(elapsed()));
    }
    SoftWumble::draw(painter, petPlace, day_, pet_.pose(elapsed()), SoftWumble::Sticker::dieCut,
                     stickerColours(appearance));
    painter.restore();
}

void ReminderView::drawWords(QPainter& painter, const Appearance& appearance) const {
    const FollowAlongView words{.title = QString::fromStdString(toast_.title),
                                .follow = follow_ ? &*follow_ : nullptr,
                                .subtitle = QString::fromStdString(toast_.subtitle.value_or("")),
                                .elapsed = elapsed(),
                                .reduceMotion = appearance.reduceMotion};
    words.draw(painter, wordsPlace, appearance);
}

} // namespace quietlark
