#pragma once

#include "Quietlark/Theme/Controls/PressControl.h"
#include "Quietlark/Theme/Symbol.h"

#include <optional>

namespace quietlark {

/// A line of the popover to press: a symbol, words, and at its end a remark or a mark that more unfolds.
class MenuRow : public PressControl {
public:
    /// Between the edge of the row and its words, in points.
    static constexpr int sidePadding = 10;

    explicit MenuRow(const QString& text, QWidget* parent = nullptr);

    void setSymbol(Symbol symbol);

    /// Smaller words below; empty for none.
    void setDetail(const QString& detail);

    /// A dot in front of the detail: something new waits there.
    void setMarked(bool marked);

    /// The row unfolds others: a chevron at its end says whether it has.
    void setUnfolded(std::optional<bool> unfolded);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Places {
        QRectF symbol;
        QRectF words;
        QRectF detail;
        QRectF chevron;
    };
    Places places(const Appearance& appearance) const;
    void drawDetail(QPainter& painter, const QRectF& place, const Appearance& appearance) const;

    std::optional<Symbol> symbol_;
    QString detail_;
    bool marked_ = false;
    std::optional<bool> unfolded_;
};

} // namespace quietlark
