#include "Quietlark/Surfaces/Nudges/FollowAlongView.h"

#include "Quietlark/Surfaces/Notes/NoteFace.h"
#include "Quietlark/Theme/Role.h"
#include "Quietlark/Theme/Sizes.h"
#include "Quietlark/Theme/Symbol.h"
#include "Quietlark/Theme/TextLayout.h"
#include "WumbleCore/Motion/MotionTokens.h"

#include <QPainter>

#include <algorithm>

namespace quietlark {

namespace {

constexpr double gap = 8;
constexpr int mostTitleLines = 4;
constexpr double unlimited = 10000; ///< points: as wide as the words want

constexpr double dot = 8; ///< points across
constexpr double dotGap = 5;
constexpr double dotLine = 1.5;
constexpr int mostDots = 6; ///< more of them would only be counted, not seen

constexpr double checkSize = 20;
constexpr double checkGap = 7;
constexpr double half = 0.5;  ///< of the way from one cue to the next
constexpr double cueRise = 5; ///< points that a new cue comes up through

const TextStyle titleStyle{.token = TypeToken::title, .mostLines = mostTitleLines, .balanced = true};
const TextStyle lineStyle{.token = TypeToken::body, .alignment = Qt::AlignLeft | Qt::AlignVCenter};

double rowHeight(const Appearance& appearance) {
    return std::max(measureText(QStringLiteral("Wg"), lineStyle, unlimited, appearance).height(), checkSize);
}

double titleHeight(const QString& title, double width, const Appearance& appearance) {
    TextStyle whole = titleStyle;
    whole.mostLines = 100;
    return measureText(title, whole, width, appearance).height();
}

} // namespace

void FollowAlongView::draw(QPainter& painter, const QRectF& place, const Appearance& appearance) const {
    const Appearance fits = withFittingText(appearance, [&](const Appearance& tried) {
        return titleHeight(title, place.width(), tried) + gap + rowHeight(tried) <= place.height() &&
               widestCue(tried) <= place.width();
    });
    const double row = rowHeight(fits);
    const double most = place.height() - gap - row;
    const double high = std::min(measureText(title, titleStyle, place.width(), fits).height(), most);
    const double top = place.top() + (place.height() - high - gap - row) / 2;
    drawText(painter, QRectF(place.left(), top, place.width(), high), title, titleStyle, fits);
    drawLine(painter, QRectF(place.left(), top + high + gap, place.width(), row), fits);
}

/// All that is said along the way has one size.
double FollowAlongView::widestCue(const Appearance& appearance) const {
    if (follow == nullptr) {
        return 0;
    }
    double widest = 0;
    for (const auto& cue : follow->cues()) {
        const double before = cue.isDone ? checkSize + checkGap : roundsWidth();
        const QString text = QString::fromStdString(cue.text);
        widest = std::max(widest, before + measureText(text, lineStyle, unlimited, appearance).width());
    }
    return widest;
}

double FollowAlongView::roundsWidth() const {
    const int rounds = follow->rounds();
    return rounds > mostDots ? 0 : rounds * (dot + dotGap) + gap - dotGap;
}

void FollowAlongView::drawLine(QPainter& painter, const QRectF& row, const Appearance& appearance) const {
    if (follow == nullptr) {
        drawText(painter, row, subtitle, lineStyle, appearance);
        return;
    }
    const auto* cue = follow->at(elapsed);
    if (cue != nullptr && cue->isDone) {
        drawCue(painter, row, *cue, 1, appearance);
        return;
    }
    drawRounds(painter, row, appearance);
    const QRectF words = row.adjusted(roundsWidth(), 0, 0, 0);
    if (cue == nullptr) {
        return;
    }
    // The old words are gone before the new ones can be read.
    const double way = reduceMotion || cue->from <= 0 ? 1 : wumble::Motion::fade.value(elapsed - cue->from);
    if (const auto* leaving = follow->before(*cue); leaving != nullptr && way < half) {
        drawCue(painter, words, *leaving, way / half - 1, appearance);
    }
    if (way > half) {
        drawCue(painter, words, *cue, (way - half) / (1 - half), appearance);
    }
}

/// `presence`: 0 to 1 for one that comes, -1 to 0 for one that goes.
void FollowAlongView::drawCue(QPainter& painter, const QRectF& row, const FollowAlongLine::Cue& cue,
                              double presence, const Appearance& appearance) const {
    QRectF words = row;
    painter.save();
    if (cue.isDone) {
        const double size = popped(elapsed - cue.from);
        const QPointF center(row.left() + checkSize / 2, row.center().y());
        const double reach = size * checkSize / 2;
        painter.setPen(QPen(colour(Role::line, appearance), dotLine));
        painter.setBrush(colour(Role::go, appearance));
        painter.drawEllipse(center, reach, reach);
        const double mark = size * IconSize::small;
        drawSymbol(painter, QRectF(center.x() - mark / 2, center.y() - mark / 2, mark, mark), Symbol::check,
                   colour(Role::onPop, appearance));
        words.setLeft(row.left() + checkSize + checkGap);
    }
    painter.setOpacity(painter.opacity() * std::abs(presence));
    words.translate(0, presence < 0 ? -cueRise * (1 + presence) : cueRise * (1 - presence));
    drawText(painter, words, QString::fromStdString(cue.text), lineStyle, appearance);
    painter.restore();
}

/// One dot a round, filled once it is done.
void FollowAlongView::drawRounds(QPainter& painter, const QRectF& row, const Appearance& appearance) const {
    const int rounds = follow->rounds();
    if (rounds > mostDots) {
        return;
    }
    const int done = follow->roundsDone(elapsed);
    painter.save();
    painter.setPen(QPen(colour(Role::line, appearance), dotLine));
    for (int round = 0; round < rounds; ++round) {
        const QPointF center(row.left() + dot / 2 + round * (dot + dotGap), row.center().y());
        const double reach = round < done ? popped(elapsed - follow->roundEnd(round)) * dot / 2 : dot / 2;
        painter.setBrush(colour(round < done ? Role::go : Role::card, appearance));
        painter.drawEllipse(center, reach, reach);
    }
    painter.restore();
}

double FollowAlongView::popped(double since) const {
    constexpr double from = 0.5;
    return reduceMotion ? 1 : from + (1 - from) * wumble::Motion::pop.value(since);
}

} // namespace quietlark
