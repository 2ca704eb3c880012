#pragma once

#include "WumbleCore/Foundation/Calendar.h"
#include "WumbleCore/Life/Recap.h"

#include <QWidget>

namespace quietlark {

/// The pets of a week or a month on a shelf, seven days a row, each at its weekday.
class CrewShelf : public QWidget {
public:
    explicit CrewShelf(QWidget* parent = nullptr);

    void setRecap(const wumble::Recap& recap, wumble::Date now, const wumble::Calendar& calendar);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Cell {
        std::optional<wumble::WumbleDay> day;
        QString label;
        bool isToday = false;
    };

    QRectF place(std::size_t cell) const;
    void drawCell(QPainter& painter, const QRectF& place, const Cell& cell) const;

    std::vector<Cell> cells_;
    std::size_t leading_ = 0; ///< places of the first row before the first day
};

} // namespace quietlark
