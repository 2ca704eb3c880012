#include "Quietlark/Surfaces/BreakScreen/BreakKeys.h"
#include "Quietlark/Surfaces/BreakScreen/BreakView.h"
#include "Quietlark/Surfaces/Fading.h"
#include "WumbleCore/Motion/MotionTokens.h"

#include <algorithm>
#include <utility>

namespace quietlark {

namespace {

namespace Motion = wumble::Motion;

constexpr double petGlide = 0.6; ///< seconds until it has come to rest elsewhere

} // namespace

BreakTimes BreakView::screenTimes() const {
    return {.shownAt = setup_.stage->shownAt, .leftAt = setup_.stage->leftAt.value()};
}

WordTimes BreakView::wordTimes() const {
    const auto& reveal = setup_.stage->reveal.value();
    const bool reveals =
        content_.scene == BreakScene::celebrating && reveal && setup_.context.loop.now() >= reveal->startedAt;
    return {.screen = screenTimes(),
            .sceneAt = sceneAt_,
            .revealAt = reveals ? std::optional(reveal->poppedAt()) : std::nullopt,
            .reduceMotion = appearance_.reduceMotion};
}

wumble::Date BreakView::restsFrom() const {
    const bool reduces = appearance_.reduceMotion;
    const BreakTimes times = screenTimes();
    wumble::Date until =
        std::max({movingUntil(part::Ground{}, times, reduces), movingUntil(part::Wumble{}, times, reduces),
                  wordsMovingUntil(wordTimes()), controls_.movingUntil()});
    if (footerAt_) {
        until = std::max(until, *footerAt_ + Motion::fade.duration);
    }
    if (petMovedAt_) {
        until = std::max(until, *petMovedAt_ + petGlide);
    }
    if (const auto& reveal = setup_.stage->reveal.value()) {
        until = std::max(until, reveal->movingUntil());
    }
    return until;
}

bool BreakView::isAwake(wumble::Date now) const {
    const auto& shownAt = setup_.stage->shownAt;
    const bool isFresh = shownAt && now >= *shownAt && now - *shownAt < keysSleepFor;
    return !isFresh && !setup_.stage->leftAt.value();
}

QRectF BreakView::petPlace(wumble::Date now) const {
    if (!petMovedAt_ || now < *petMovedAt_ || now - *petMovedAt_ >= petGlide) {
        return layout_.pet;
    }
    const double way = Motion::settle.value(now - *petMovedAt_);
    const auto between = [way](const QPointF& a, const QPointF& b) { return a + (b - a) * way; };
    return {between(petFrom_.topLeft(), layout_.pet.topLeft()),
            between(petFrom_.bottomRight(), layout_.pet.bottomRight())};
}

std::optional<ConfettiBurst> BreakView::burst() const {
    if (!setup_.isPrimary || !beats_.burst) {
        return std::nullopt;
    }
    return ConfettiBurst{.start = *beats_.burst, .big = setup_.stage->reveal.value()->milestone};
}

void BreakView::frame() {
    const wumble::Date now = setup_.context.loop.now();
    const auto& reveal = setup_.stage->reveal.value();
    if (reveal && reveal->beats(now) != beats_) {
        refresh();
    }
    posePet(now);
    poseThings(now);
    poseTags(now);
    controls_.pose(wordTimes(), now);
    controls_.setAwake(isAwake(now));
    lockButton_->setAttribute(Qt::WA_TransparentForMouseEvents, !isAwake(now) || !content_.showsLock);
    updateMoving(now);
    if (now >= restsFrom()) {
        frames_.stop();
    }
}

void BreakView::posePet(wumble::Date now) {
    const EntrancePose pose = entrancePose(part::Wumble{}, screenTimes(), now, appearance_.reduceMotion);
    const auto& reveal = setup_.stage->reveal.value();
    pet_->setPlace(petPlace(now));
    pet_->setScale(pose.scale * (reveal ? reveal->petScale(now) : 1));
    setFading(*pet_, pose.opacity);
}

void BreakView::poseThings(wumble::Date now) {
    WordTimes times = wordTimes();
    const EntrancePose dots = wordPose(times, order::ring, now);
    dots_->move(layout_.dots.topLeft().toPoint() + QPoint(0, static_cast<int>(dots.drop)));
    dots_->resize(layout_.dots.size().toSize());
    setFading(*dots_, dots.opacity);

    const double former = formerWords(times, now);
    times.sceneAt = ringAt_;
    times.revealAt.reset();
    const EntrancePose ring = wordPose(times, order::ring, now);
    if (content_.ring) {
        ring_->setGeometry(QRectF(layout_.ring).translated(0, ring.drop).toRect());
    }
    setFading(*ring_, content_.ring ? ring.opacity : former);
    ring_->setVisible(content_.ring || (ring_->isVisibleTo(this) && former > 0));

    const EntrancePose bar = entrancePose(part::Words{order::footer}, times.screen, now, times.reduceMotion);
    if (content_.showsLock) {
        placeFace(*lockButton_, layout_.lock, bar.drop);
    }
    setFading(*lockButton_, content_.showsLock ? bar.opacity : former);
    lockButton_->setVisible(content_.showsLock || (lockButton_->isVisibleTo(this) && former > 0));
}

void BreakView::poseTags(wumble::Date now) {
    const auto& reveal = setup_.stage->reveal.value();
    const double landed = reveal ? reveal->landed(now) : 1;
    const double opacity =
        entrancePose(part::Wumble{}, {.leftAt = setup_.stage->leftAt.value()}, now, appearance_.reduceMotion)
            .opacity;
    tag_->setLanded(landed);
    chip_->setLanded(landed);
    setFading(*tag_, opacity);
    setFading(*chip_, opacity);
}

/// The widgets have drawn themselves anew where they must; this is about what the view draws by itself.
void BreakView::updateMoving(wumble::Date now) {
    const bool groundMoves = now < movingUntil(part::Ground{}, screenTimes(), appearance_.reduceMotion);
    if (std::exchange(groundMoved_, groundMoves) || groundMoves) {
        return update();
    }
    for (const WordBlock& block : layout_.words) {
        update(block.reach());
    }
    for (const WordBlock& block : formerWords_) {
        update(block.reach());
    }
    update(layout_.footer.reach());
    update(layout_.clock.reach());
    if (setup_.isPrimary && setup_.stage->reveal.value()) {
        const bool big = setup_.stage->reveal.value()->milestone;
        update(ConfettiBurst::reach(big, layout_.confetti).toAlignedRect());
    }
    if (formerWords(wordTimes(), now) <= 0) {
        formerWords_.clear();
    }
}

} // namespace quietlark
