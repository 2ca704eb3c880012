#pragma once

#include "Quietlark/Theme/Controls/PressControl.h"
#include "Quietlark/Theme/Sizes.h"
#include "Quietlark/Theme/Symbol.h"

#include <optional>

namespace quietlark {

class StickerButton : public PressControl {
public:
    enum class Kind {
        primary, ///< the way on
        plain,
        quiet, ///< words alone
    };

    explicit StickerButton(const QString& text, Kind kind, QWidget* parent = nullptr);

    /// In front of the words.
    void setSymbol(Symbol symbol);

    /// Instead of the kind's own.
    void setFill(Surface fill);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Surface fill() const;
    Role ink() const;
    void drawFace(QPainter& painter, const QRectF& face, const Appearance& appearance) const;
    void drawWords(QPainter& painter, const QRectF& face, const Appearance& appearance) const;

    Kind kind_;
    std::optional<Symbol> symbol_;
    std::optional<Surface> fill_;
};

} // namespace quietlark
