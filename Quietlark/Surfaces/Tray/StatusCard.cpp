#include "Quietlark/Surfaces/Tray/StatusCard.h"

#include "Quietlark/Surfaces/SpokenText.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Controls/PressControl.h"
#include "Quietlark/Theme/Sticker.h"
#include "Quietlark/Theme/TextLayout.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace quietlark {

namespace {

constexpr int margin = PressControl::margin; ///< as buttons have it, so that all edges line up
constexpr double padding = 14;
constexpr double lineGap = 3;
constexpr int usualWidth = 300;

/// One line, or a few, of the card.
struct Line {
    QString text;
    TextStyle style;
    bool isClock = false;
    bool isEmphasized = false;
};

QString text(const std::string& words) { return QString::fromStdString(words); }

QFont clockFont(bool emphasized, const Appearance& appearance) {
    QFont result = font(TypeToken::numeralMedium);
    result.setPixelSize(
        std::max(1, static_cast<int>(std::lround(result.pixelSize() * appearance.textScale))));
    result.setWeight(emphasized ? QFont::ExtraBold : result.weight());
    return result;
}

std::vector<Line> lines(const TrayWords::Status& status, Surface fill) {
    const Role ink = quietlark::ink(fill);
    const Role muted = ink == Role::onPop ? Role::onPop : Role::textMuted;
    std::vector<Line> result;
    if (status.clock.empty()) {
        result.push_back({text(status.words), {.token = TypeToken::title, .ink = ink, .mostLines = 2}});
    } else {
        result.push_back({text(status.words),
                          {.token = TypeToken::body, .ink = ink, .mostLines = 2, .weight = QFont::DemiBold}});
        result.push_back({text(status.clock), {.ink = ink}, true, status.emphasized});
    }
    for (const std::string& remark : {status.detail, status.hint}) {
        if (!remark.empty()) {
            result.push_back({text(remark), {.token = TypeToken::callout, .ink = muted, .mostLines = 3}});
        }
    }
    return result;
}

double heightOf(const Line& line, double width, const Appearance& appearance) {
    return line.isClock ? QFontMetricsF(clockFont(line.isEmphasized, appearance)).height()
                        : measureText(line.text, line.style, width, appearance).height();
}

/// Every digit takes the room of the widest.
void drawClock(QPainter& painter, const QRectF& place, const Line& line, const Appearance& appearance) {
    const QFont face = clockFont(line.isEmphasized, appearance);
    const QFontMetricsF metrics(face);
    double digit = 0;
    for (char16_t each = u'0'; each <= u'9'; ++each) {
        digit = std::max(digit, metrics.horizontalAdvance(QChar(each)));
    }
    painter.setFont(face);
    painter.setPen(colour(line.style.ink, appearance));
    double left = place.left();
    for (const QChar letter : line.text) {
        const double own = metrics.horizontalAdvance(letter);
        const double cell = letter.isDigit() ? digit : own;
        painter.drawText(QPointF(left + (cell - own) / 2, place.top() + metrics.ascent()), QString(letter));
        left += cell;
    }
}

} // namespace

StatusCard::StatusCard(QWidget* parent) : QWidget(parent) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    readAsText(*this);
}

void StatusCard::setStatus(const TrayWords::Status& status) {
    if (status == status_) {
        return;
    }
    const int before = heightForWidth(width());
    status_ = status;
    QStringList said;
    for (const Line& line : lines(status_, fill())) {
        said.append(line.text);
    }
    setAccessibleName(said.join(u' '));
    if (heightForWidth(width()) != before) {
        updateGeometry();
    }
    update();
}

Surface StatusCard::fill() const {
    switch (status_.tone) {
    case TrayWords::Status::Tone::counting: return Surface::time;
    case TrayWords::Status::Tone::held: return Surface::live;
    case TrayWords::Status::Tone::calm: break;
    }
    return Surface::card;
}

QSize StatusCard::sizeHint() const { return {usualWidth, heightForWidth(usualWidth)}; }

int StatusCard::heightForWidth(int width) const {
    const Appearance look = appearanceOf(*this);
    double total = 2 * (margin + padding) - lineGap;
    for (const Line& line : lines(status_, fill())) {
        total += heightOf(line, width - 2 * (margin + padding), look) + lineGap;
    }
    return static_cast<int>(std::ceil(total));
}

void StatusCard::paintEvent(QPaintEvent*) {
    const Appearance look = appearanceOf(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF card = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    drawSticker(painter, card, {.fill = fill()}, look);
    QRectF place = card.adjusted(padding, padding, -padding, -padding);
    for (const Line& line : lines(status_, fill())) {
        place.setHeight(heightOf(line, place.width(), look));
        if (line.isClock) {
            drawClock(painter, place, line, look);
        } else {
            drawText(painter, place, line.text, line.style, look);
        }
        place.moveTop(place.bottom() + lineGap);
    }
}

} // namespace quietlark
