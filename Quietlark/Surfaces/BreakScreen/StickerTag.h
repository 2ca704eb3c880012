#pragma once

#include "Quietlark/Theme/Sizes.h"

#include <QString>
#include <QWidget>

namespace quietlark {

/// Something that is pinned on: how far it has landed (0 to 1, past 1 on its way) is its size.
class Landing : public QWidget {
public:
    explicit Landing(QWidget* parent);

    /// 0: not there yet, 1: at rest.
    void setLanded(double landed);

    /// Degrees by which it lies askew.
    void setTilt(double degrees);

    /// The thing's own size; the widget has air around it.
    virtual QSizeF thingSize() const = 0;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    virtual void drawThing(QPainter& painter, const QRectF& place) = 0;

private:
    double landed_ = 1;
    double tilt_ = 0;
};

/// The name of what the pet just got.
class StickerTag final : public Landing {
public:
    explicit StickerTag(QWidget* parent = nullptr) : Landing(parent) {}

    void setText(const QString& text, Surface fill);
    QSizeF thingSize() const override;

protected:
    void drawThing(QPainter& painter, const QRectF& place) override;

private:
    QString text_;
    Surface fill_ = Surface::wumble;
};

/// How many days in a row had a break.
class StreakChip final : public Landing {
public:
    enum class Size { regular, large };

    explicit StreakChip(Size size, QWidget* parent = nullptr) : Landing(parent), size_(size) {}

    /// `lit`: this day had its break already.
    void setStreak(int days, bool lit);
    QSizeF thingSize() const override;

    /// What the pointer is told, and those who listen.
    static QString help(int days, bool lit);
    static QString spoken(int days, bool lit);

protected:
    void drawThing(QPainter& painter, const QRectF& place) override;

private:
    QString words() const;

    Size size_;
    int days_ = 0;
    bool lit_ = false;
};

/// The colour of the tag for the step that the pet reached, from 1.
Surface tagFill(int step);

} // namespace quietlark
