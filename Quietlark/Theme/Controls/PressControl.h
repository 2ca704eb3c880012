#pragma once

#include "Quietlark/Theme/Appearance.h"

#include <QAbstractButton>
#include <QVariantAnimation>

namespace quietlark {

/// What all buttons have in common: they lift when the pointer is over them, go down onto their shadow when pressed,
/// act on Space and Return, and show a ring when the keyboard brought the focus. `contentsRect` is the face; the
/// shadow and the ring have the margin around it.
class PressControl : public QAbstractButton {
public:
    /// Around the face on each side, in points.
    static constexpr int margin = 7;

    explicit PressControl(QWidget* parent);

    /// Also the accessible name, unless that was given another. An ampersand is an ampersand.
    void setText(const QString& text);

protected:
    Appearance appearance() const;
    QRectF face() const { return contentsRect(); }
    QSize withMargins(QSizeF face) const;

    /// How far the face is moved from its place to the right and down; above 0 while pressed.
    double offset() const;
    bool showsFocus() const { return hasFocus() && focusByKeyboard_; }

    bool hitButton(const QPoint& position) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    double wantedOffset() const;
    void move();
    void setOver(bool isOver);

    QVariantAnimation way_;
    bool isOver_ = false;
    bool wasPressed_ = false;
    bool focusByKeyboard_ = false;
};

} // namespace quietlark
