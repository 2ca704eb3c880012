#pragma once

#include "Quietlark/Surfaces/BreakScreen/BreakContent.h"
#include "Quietlark/Surfaces/BreakScreen/BreakEntrance.h"
#include "Quietlark/Theme/Controls/StickerButton.h"

#include <QRectF>

#include <functional>
#include <vector>

namespace quietlark {

/// The row of buttons of the break screen. They are real ones, in the order of the Tab key.
class BreakControls {
public:
    /// The buttons belong to `parent`.
    BreakControls(QWidget& parent, const std::function<void(BreakControl)>& pressed);

    /// Without the air around them.
    std::vector<QSizeF> sizes(const std::vector<BreakControl>& controls) const;

    /// Has these in these places, and no others. In the same scene a new one fades in and the others make room for it.
    void show(const std::vector<BreakControl>& controls, const std::vector<QRectF>& places, wumble::Date now,
              bool isSameScene);

    /// Brings all of them to where they are now.
    void pose(const WordTimes& times, wumble::Date now);

    /// From then on they stand still.
    wumble::Date movingUntil() const;

    /// Whether they can be pressed.
    void setAwake(bool awake);

    /// Whether one that isn't among these has the keyboard.
    bool loseFocus(const std::vector<BreakControl>& controls) const;

    const std::vector<StickerButton*>& buttons() const { return buttons_; }

private:
    struct Item {
        BreakControl control;
        StickerButton* button;
        QRectF place;
        bool isWanted = false;
        bool isFormer = false; ///< of the scene before
        std::optional<wumble::Date> appearedAt;
        QPointF movedFrom;
        std::optional<wumble::Date> movedAt;
    };

    void want(Item& item, const QRectF& place, wumble::Date now, bool isSameScene);
    static void drop(Item& item, bool isSameScene);
    static QPointF cornerAt(const Item& item, wumble::Date now);
    static void poseItem(Item& item, const WordTimes& times, wumble::Date now);

    std::vector<Item> items_;
    std::vector<StickerButton*> buttons_;
};

/// Puts a button's face there; the air around it lies outside.
void placeFace(QWidget& button, const QRectF& face, double drop);

/// Its face, without the air around it.
QSizeF faceSize(const QWidget& button);

} // namespace quietlark
