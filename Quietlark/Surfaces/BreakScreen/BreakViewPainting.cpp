#include "Quietlark/Surfaces/BreakScreen/BreakView.h"
#include "Quietlark/Theme/Sticker.h"
#include "WumbleCore/Motion/MotionTokens.h"

#include <QPaintEvent>
#include <QPainter>

namespace quietlark {

namespace {

constexpr double smallestHint = 0.9;

/// Where something moves beside the words they aren't set anew.
void drawBlock(QPainter& painter, const QRegion& exposed, const WordBlock& block, const EntrancePose& pose,
               const Appearance& appearance) {
    if (pose.opacity <= 0 || block.text.isEmpty() || !exposed.intersects(block.reach())) {
        return;
    }
    painter.setOpacity(pose.opacity);
    drawText(painter, block.place.translated(0, pose.drop), block.text, block.style, appearance);
}

} // namespace

void BreakView::paintEvent(QPaintEvent* event) {
    const wumble::Date now = setup_.context.loop.now();
    const WordTimes times = wordTimes();
    QPainter painter(this);
    const EntrancePose ground = entrancePose(part::Ground{}, screenTimes(), now, appearance_.reduceMotion);
    ground_.draw(painter, size(), event->rect(), ground.opacity);
    if (const auto confetti = burst()) {
        painter.setOpacity(entrancePose(part::Words{}, {.leftAt = times.screen.leftAt}, now, false).opacity);
        confetti->draw(painter, layout_.confetti, now, appearance_);
    }
    for (const WordBlock& block : formerWords_) {
        drawBlock(painter, event->region(), block, {.opacity = formerWords(times, now)}, appearance_);
    }
    for (const WordBlock& block : layout_.words) {
        drawBlock(painter, event->region(), block, wordPose(times, block.order, now), appearance_);
    }
    if (event->region().intersects(layout_.footer.reach())) {
        drawFooter(painter, now);
    }
    const EntrancePose bar = entrancePose(part::Words{order::footer}, times.screen, now, times.reduceMotion);
    drawBlock(painter, event->region(), layout_.clock, bar, appearance_);
}

void BreakView::drawFooter(QPainter& painter, wumble::Date now) const {
    const EntrancePose pose = wordPose(wordTimes(), order::footer, now);
    const bool isFresh = footerAt_ && now >= *footerAt_;
    const double come = isFresh ? wumble::Motion::fade.value(now - *footerAt_) : 1;
    if (formerFooter_ && come < 1) {
        drawFooterLine(painter, *formerFooter_, {.opacity = pose.opacity * (1 - come), .drop = pose.drop});
    }
    const double scale =
        content_.footerIsHint && !appearance_.reduceMotion ? smallestHint + (1 - smallestHint) * come : 1;
    drawFooterLine(painter, {layout_.footer, content_.footerIsHint},
                   {.opacity = pose.opacity * come, .scale = scale, .drop = pose.drop});
}

void BreakView::drawFooterLine(QPainter& painter, const FooterLine& line, const EntrancePose& pose) const {
    if (pose.opacity <= 0 || line.words.text.isEmpty()) {
        return;
    }
    painter.save();
    painter.setOpacity(pose.opacity);
    const QPointF middle = line.words.place.center();
    painter.translate(middle.x(), middle.y() + pose.drop);
    painter.scale(pose.scale, pose.scale);
    painter.translate(-middle);
    if (line.isHint) {
        const QRectF capsule = hintCapsule(line.words, appearance_);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour(Role::selected, appearance_));
        painter.drawRoundedRect(capsule, capsule.height() / 2, capsule.height() / 2);
    }
    drawText(painter, line.words.place, line.words.text, line.words.style, appearance_);
    painter.restore();
}

} // namespace quietlark
