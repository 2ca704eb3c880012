#include "Quietlark/Surfaces/BreakScreen/CountdownRing.h"

#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/TextLayout.h"
#include "WumbleCore/Motion/Curve.h"

#include <QPainter>

#include <cmath>

namespace quietlark {

namespace {

constexpr double diameter = 120; ///< points, at the usual size of text
constexpr double largestGrowth = 1.3;
constexpr double trackWidth = 6;
constexpr double trackInset = 12; ///< from the edge of the disc to the middle of the track
constexpr double outline = 1.5;
constexpr double contrastOutline = 2.5;
constexpr double smallStep = 1.0 / 300; ///< of the whole ring: a point along it
constexpr std::size_t widestLarge = 5;  ///< letters: "12:34"

constexpr wumble::Motion::Curve easing{.duration = 0.25, .x1 = 0.25, .y1 = 0.1, .x2 = 0.25, .y2 = 1};

void drawRing(QPainter& painter, const QRectF& place, double progress, const std::string& label,
              const Appearance& appearance) {
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = appearance.moreContrast ? contrastOutline : outline;
    painter.setPen(QPen(colour(Role::line, appearance), line));
    painter.setBrush(colour(Role::card, appearance));
    painter.drawEllipse(place.adjusted(line / 2, line / 2, -line / 2, -line / 2));
    const QRectF track = place.adjusted(trackInset, trackInset, -trackInset, -trackInset);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour(Role::rule, appearance), trackWidth));
    painter.drawEllipse(track);
    if (progress > 0) {
        painter.setPen(QPen(colour(Role::go, appearance), trackWidth, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(track, 90 * 16, static_cast<int>(std::lround(-progress * 360 * 16)));
    }
    const TextStyle style{.token =
                              label.size() > widestLarge ? TypeToken::numeralSmall : TypeToken::numeralMedium,
                          .alignment = Qt::AlignCenter};
    drawText(painter, track.adjusted(trackWidth, 0, -trackWidth, 0), QString::fromStdString(label), style,
             appearance);
}

} // namespace

CountdownRing::CountdownRing(const MainLoop& loop, double refreshRate, QWidget* parent)
    : QWidget(parent), loop_(loop), refreshRate_(refreshRate), frames_(loop, [this](double) {
          update();
          if (loop_.now() >= movingUntil()) {
              frames_.stop();
          }
      }) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(QStringLiteral("Time left"));
}

QSize CountdownRing::sizeHint() const {
    const double growth = std::clamp(appearanceOf(*this).textScale, 1.0, largestGrowth);
    const int side = static_cast<int>(std::lround(diameter * growth));
    return {side, side};
}

void CountdownRing::setValue(const RingValue& value) {
    if (value == value_) {
        return;
    }
    const wumble::Date now = loop_.now();
    const double shown = shownProgress(now);
    const bool jumps = std::abs(value.progress - shown) > smallStep && isVisible();
    from_ = jumps ? shown : value.progress;
    changedAt_ = jumps ? now : wumble::earliestWrittenDate;
    value_ = value;
    setAccessibleDescription(QString::fromStdString(value.label));
    update();
    if (jumps && !appearanceOf(*this).reduceMotion) {
        frames_.start(refreshRate_);
    }
}

double CountdownRing::shownProgress(wumble::Date now) const {
    const double way =
        appearanceOf(*this).reduceMotion || now < changedAt_ ? 1 : easing.value(now - changedAt_);
    return from_ + (value_.progress - from_) * way;
}

wumble::Date CountdownRing::movingUntil() const { return changedAt_ + easing.duration; }

void CountdownRing::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawRing(painter, rect(), shownProgress(loop_.now()), value_.label, appearanceOf(*this));
}

} // namespace quietlark
