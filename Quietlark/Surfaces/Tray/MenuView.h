#pragma once

#include "Quietlark/Surfaces/SurfaceContext.h"
#include "Quietlark/Surfaces/Tray/TrayActions.h"

#include <QRegion>
#include <QWidget>

#include <functional>
#include <memory>

class QVBoxLayout;

namespace quietlark {

class ActionsArea;
class MetaArea;
class PaperScroll;
class RevealDots;
class SlotRow;
class StatusCard;
class TextBlock;
class WumbleView;

/// The popover: the pet and its day, what the clock is doing, what may be done about it, and the ways to the rest.
/// Made anew each time it opens; while it is open only what changed is drawn again.
class MenuView : public QWidget {
public:
    MenuView(const SurfaceContext& context, const TrayDoors& doors);

    void refresh();

    /// The keys go to the first button, Tab and the arrows from one to the next.
    void takeKeyboard();

    /// Called when the person is done with it.
    std::function<void()> closed = [] {};

    /// Called when `sizeHint` has become another.
    std::function<void()> wantsOtherSize = [] {};

    QSize sizeHint() const override;

    /// The card and its shadow at that size.
    static QRegion outline(QSizeF size);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* header();
    void refreshHeader();
    void waitAgain();
    void settle();
    int pageWidth() const;

    SurfaceContext context_;
    PaperScroll* scroll_;
    QWidget* page_;
    WumbleView* pet_ = nullptr;
    TextBlock* petTitle_ = nullptr;
    TextBlock* petDay_ = nullptr;
    RevealDots* dots_ = nullptr;
    StatusCard* status_ = nullptr;
    SlotRow* slot_ = nullptr;
    ActionsArea* actions_ = nullptr;
    MetaArea* meta_ = nullptr;
    QSize lastHint_;
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

} // namespace quietlark
