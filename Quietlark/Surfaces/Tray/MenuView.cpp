#include "Quietlark/Surfaces/Tray/MenuView.h"

#include "Quietlark/Model/StatusLine.h"
#include "Quietlark/Pet/WumbleView.h"
#include "Quietlark/Surfaces/TextBlock.h"
#include "Quietlark/Surfaces/Tray/ActionsArea.h"
#include "Quietlark/Surfaces/Tray/MetaArea.h"
#include "Quietlark/Surfaces/Tray/ReadingOrder.h"
#include "Quietlark/Surfaces/Tray/SlotRow.h"
#include "Quietlark/Surfaces/Tray/StatusCard.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Controls/PaperScroll.h"
#include "Quietlark/Theme/Controls/PressControl.h"
#include "Quietlark/Theme/Controls/RevealDots.h"
#include "Quietlark/Theme/Sticker.h"
#include "Quietlark/Theme/Text.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

#include <cmath>

namespace quietlark {

namespace {

constexpr int edge = 2;     ///< of air around the card
constexpr int padding = 9;  ///< inside it; what stands there has a margin of its own
constexpr int groupGap = 2; ///< between groups, beside those margins
constexpr int usualWidth = 336;
constexpr double inset = 2; ///< of the dots from the outline
constexpr double dotSpacing = 14;
constexpr int petSize = 92;
constexpr double waitsAgainFor = 2; ///< seconds

/// Larger letters want a wider card, but not as much wider as they are larger.
double widthShare(double textScale) { return 1 + (textScale - 1) * 0.6; }

QRectF cardWithin(const QRectF& whole) {
    return whole.adjusted(edge, edge, -edge - Lift::floating, -edge - Lift::floating);
}

/// Layouts keep the heights that they worked out until the event loop comes round.
void invalidateLayouts(const QWidget& root) {
    for (const QWidget* inside : root.findChildren<QWidget*>()) {
        if (inside->layout() != nullptr) {
            inside->layout()->invalidate();
        }
    }
    root.layout()->invalidate();
}

/// A faint line between what is done now and the rest.
class Rule : public QWidget {
public:
    explicit Rule(QWidget* parent = nullptr) : QWidget(parent) { setFixedHeight(9); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const double middle = height() / 2.0;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(colour(Role::rule, appearanceOf(*this)), 1.5, Qt::DotLine, Qt::RoundCap));
        painter.drawLine(QPointF(PressControl::margin, middle),
                         QPointF(width() - PressControl::margin, middle));
    }
};

} // namespace

MenuView::MenuView(const SurfaceContext& context, const TrayDoors& doors)
    : context_(context), scroll_(new PaperScroll(this)), page_(new QWidget) {
    setObjectName(QStringLiteral("popover"));
    setAccessibleName(QStringLiteral("Quietlark"));
    auto* column = new QVBoxLayout(page_);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(groupGap);
    status_ = new StatusCard;
    slot_ = new SlotRow;
    actions_ = new ActionsArea(context.model);
    meta_ = new MetaArea(context.model, doors, [this] { closed(); });
    const auto widgets = std::initializer_list<QWidget*>{header(), status_, slot_, actions_, new Rule, meta_};
    for (QWidget* widget : widgets) {
        column->addWidget(widget);
    }
    scroll_->setWidget(page_);
    scroll_->viewport()->setAutoFillBackground(false);
    page_->setAutoFillBackground(false);
    slot_->dontWait = [this] { context_.model.ignoreSmartPause(); };
    slot_->waitAgain = [this] { waitAgain(); };
    actions_->changedSize = meta_->changedSize = [this] { settle(); };
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(edge, edge, edge + static_cast<int>(Lift::floating),
                              edge + static_cast<int>(Lift::floating));
    whole->addWidget(scroll_);
}

QWidget* MenuView::header() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(PressControl::margin, 0, PressControl::margin, 0);
    layout->setSpacing(12);
    pet_ = new WumbleView(context_.model.state().today.value());
    pet_->setFixedSize(petSize, petSize);
    layout->addWidget(pet_);
    auto* words = new QVBoxLayout;
    words->setSpacing(3);
    petTitle_ = new TextBlock({}, {.token = TypeToken::title, .mostLines = 2, .balanced = true});
    petDay_ = new TextBlock({}, {.token = TypeToken::callout, .ink = Role::textMuted, .mostLines = 2});
    dots_ = new RevealDots;
    words->addStretch(1);
    words->addWidget(petTitle_);
    words->addWidget(petDay_);
    words->addSpacing(4);
    words->addWidget(dots_, 0, Qt::AlignLeft);
    words->addStretch(1);
    layout->addLayout(words, 1);
    return row;
}

void MenuView::refresh() {
    const AppModel& model = context_.model;
    refreshHeader();
    status_->setStatus(TrayWords::status(model.state(), model.engine(), model.calendar()));
    slot_->setSlot(TrayWords::slotOf(model.state()));
    actions_->setRows(TrayWords::actions(model.state(), model.engine()));
    meta_->refresh();
    tabInOrder(inReadingOrder(*page_));
    settle();
}

void MenuView::refreshHeader() {
    const AppState& state = context_.model.state();
    const wumble::WumbleDay& today = state.today.value();
    pet_->setAppearance(appearanceOf(*this));
    pet_->setDay(today);
    pet_->setMood(mood(state));
    pet_->setFamilyName(text(state.life.value().name));
    petTitle_->setText(text(TrayWords::petTitle(today, state.life.value().name)));
    petDay_->setText(text(context_.model.calendar().weekdayName(state.now.value())));
    dots_->setSteps(static_cast<int>(today.revealed()), static_cast<int>(wumble::revealSteps.size()));
}

void MenuView::waitAgain() {
    context_.model.stopIgnoringSmartPause();
    slot_->say(text(TrayWords::waitsAgain));
    if (context_.accessibility != nullptr) {
        context_.accessibility->announce(std::string(TrayWords::waitsAgain));
    }
    settle();
    context_.loop.after(waitsAgainFor, [this, alive = std::weak_ptr(alive_)] {
        if (!alive.expired()) {
            slot_->say(std::nullopt);
            settle();
        }
    });
}

/// The size follows what is there now, at once: a popover that grows a frame later flickers.
void MenuView::settle() {
    invalidateLayouts(*page_);
    page_->layout()->activate();
    scroll_->fitBar();
    if (const QSize hint = sizeHint(); hint != lastHint_) {
        lastHint_ = hint;
        wantsOtherSize();
    }
}

int MenuView::pageWidth() const {
    return static_cast<int>(std::lround(usualWidth * widthShare(appearanceOf(*this).textScale)));
}

QSize MenuView::sizeHint() const {
    const QMargins around = layout()->contentsMargins();
    const int width = pageWidth();
    const QLayout* page = page_->layout();
    const int height =
        page->hasHeightForWidth() ? page->totalHeightForWidth(width) : page_->sizeHint().height();
    return {width + around.left() + around.right(), height + around.top() + around.bottom()};
}

QRegion MenuView::outline(QSizeF size) {
    QPainterPath face;
    face.addRoundedRect(cardWithin({QPointF(), size}), Radius::large, Radius::large);
    const QPainterPath both = face.united(face.translated(Lift::floating, Lift::floating));
    return QRegion(both.toFillPolygon().toPolygon());
}

void MenuView::takeKeyboard() {
    // The pet above them can wait.
    if (const auto controls = inReadingOrder(*page_); controls.size() > 1) {
        controls[1]->setFocus(Qt::TabFocusReason);
    }
}

void MenuView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape: closed(); break;
    case Qt::Key_Down: focusNextPrevChild(true); break;
    case Qt::Key_Up: focusNextPrevChild(false); break;
    default: QWidget::keyPressEvent(event);
    }
}

void MenuView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF card = cardWithin(rect());
    const Appearance look = appearanceOf(*this);
    drawSticker(painter, card, {.fill = Surface::paper, .radius = Radius::large, .lift = Lift::floating},
                look);
    QPainterPath inside;
    inside.addRoundedRect(card.adjusted(inset, inset, -inset, -inset), Radius::large - inset,
                          Radius::large - inset);
    painter.setClipPath(inside);
    drawDotGrid(painter, card, dotSpacing, colour(Role::grain, look));
}

} // namespace quietlark
