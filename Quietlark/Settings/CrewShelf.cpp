#include "Quietlark/Settings/CrewShelf.h"

#include "Quietlark/Pet/SoftWumble.h"
#include "Quietlark/Settings/CrewWords.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Sticker.h"
#include "Quietlark/Theme/Text.h"
#include "Quietlark/Theme/TextLayout.h"

#include <QPainter>

#include <cmath>

namespace quietlark {

namespace {

constexpr std::size_t daysInAWeek = 7;
constexpr int cellWidth = 70;
constexpr double petSize = 58;
constexpr double gap = 4;
constexpr double plaque = 26; ///< of a day without a pet

const TextStyle labelWords = {
    .token = TypeToken::caption, .ink = Role::textMuted, .alignment = Qt::AlignHCenter | Qt::AlignVCenter};

double labelHeight(const Appearance& look) {
    return std::ceil(measureText(QStringLiteral("Mg"), labelWords, cellWidth, look).height());
}

} // namespace

CrewShelf::CrewShelf(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CrewShelf::setRecap(const wumble::Recap& recap, wumble::Date now, const wumble::Calendar& calendar) {
    cells_.clear();
    const bool isMonth = recap.period == wumble::Recap::Period::month;
    leading_ =
        isMonth ? static_cast<std::size_t>((calendar.weekday(recap.start) - calendar.firstWeekday() + 7) % 7)
                : 0;
    QStringList met;
    for (std::size_t place = 0; place < recap.dates.size(); ++place) {
        const wumble::Date date = recap.dates[place];
        const bool isToday = calendar.startOfDay(now) == date;
        const std::string name = isMonth ? std::to_string(place + 1) : calendar.weekdayName(date);
        cells_.push_back(
            {recap.wumbles[place], text(isToday ? std::string(CrewWords::today) : name), isToday});
        if (const auto& day = recap.wumbles[place]) {
            met.append(text(calendar.weekdayName(date)) + u' ' + text(wumble::name(day->base)));
        }
    }
    setAccessibleName(met.join(QStringLiteral(", ")));
    updateGeometry();
    update();
}

QSize CrewShelf::sizeHint() const {
    const auto rows = static_cast<int>((leading_ + cells_.size() + daysInAWeek - 1) / daysInAWeek);
    const double row = petSize + gap + labelHeight(appearanceOf(*this)) + gap;
    return {static_cast<int>(daysInAWeek) * cellWidth, static_cast<int>(std::ceil(rows * row))};
}

QRectF CrewShelf::place(std::size_t cell) const {
    const std::size_t at = leading_ + cell;
    const double wide = width() / static_cast<double>(daysInAWeek);
    const double row = petSize + gap + labelHeight(appearanceOf(*this)) + gap;
    return {wide * static_cast<double>(at % daysInAWeek), row * static_cast<double>(at / daysInAWeek), wide,
            row};
}

void CrewShelf::drawCell(QPainter& painter, const QRectF& place, const Cell& cell) const {
    const Appearance look = appearanceOf(*this);
    const double left = place.center().x() - petSize / 2;
    const QRectF pet(left, place.top(), petSize, petSize);
    if (cell.day) {
        SoftWumble::draw(painter, pet, *cell.day, {});
    } else {
        QRectF empty(0, 0, plaque, plaque);
        empty.moveCenter(pet.center() + QPointF(0, petSize / 6));
        painter.setPen(QPen(colour(Role::rule, look), 1.5, Qt::DotLine, Qt::RoundCap));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(empty);
    }
    TextStyle words = labelWords;
    words.ink = cell.isToday ? Role::text : Role::textMuted;
    drawText(painter, {place.left(), pet.bottom() + gap, place.width(), labelHeight(look)}, cell.label, words,
             look);
}

void CrewShelf::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t each = 0; each < cells_.size(); ++each) {
        drawCell(painter, place(each), cells_[each]);
    }
}

} // namespace quietlark
