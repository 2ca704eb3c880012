#include "Quietlark/Surfaces/Tray/ActionsArea.h"

#include "Quietlark/Surfaces/Tray/MenuRow.h"
#include "Quietlark/Surfaces/Tray/ReadingOrder.h"
#include "Quietlark/Surfaces/Tray/Refill.h"
#include "Quietlark/Surfaces/Tray/TrayActions.h"
#include "Quietlark/Surfaces/Tray/Well.h"
#include "Quietlark/Theme/Controls/StickerButton.h"
#include "Quietlark/Theme/Text.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace quietlark {

namespace {

using TrayWords::Action;
using TrayWords::ActionRow;

struct Face {
    Action action;
    StickerButton::Kind kind;
    std::optional<Symbol> symbol;
};

constexpr std::array<Face, 6> faces{{
    {Action::wakeUp, StickerButton::Kind::primary, Symbol::power},
    {Action::resume, StickerButton::Kind::primary, Symbol::play},
    {Action::breakNow, StickerButton::Kind::primary, std::nullopt},
    {Action::snooze, StickerButton::Kind::plain, std::nullopt},
    {Action::skip, StickerButton::Kind::quiet, std::nullopt},
    {Action::pause, StickerButton::Kind::plain, Symbol::chevronDown},
}};

bool sameActions(const std::vector<ActionRow>& left, const std::vector<ActionRow>& right) {
    return std::ranges::equal(left, right, {}, &ActionRow::action, &ActionRow::action);
}

template <class Layout> Layout* bare(QWidget* widget) {
    auto* layout = new Layout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

StickerButton* sticker(const ActionRow& row) {
    const Face& face = *std::ranges::find(faces, row.action, &Face::action);
    auto* button = new StickerButton(text(row.label), face.kind);
    if (face.symbol) {
        button->setSymbol(*face.symbol);
    }
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return button;
}

} // namespace

ActionsArea::ActionsArea(AppModel& model, QWidget* parent)
    : QWidget(parent), model_(model), column_(bare<QVBoxLayout>(this)) {}

void ActionsArea::setRows(const std::vector<ActionRow>& rows) {
    const bool isRebuilt = !sameActions(std::exchange(rows_, rows), rows);
    if (isRebuilt) {
        build();
    }
    for (const ActionRow& row : rows_) {
        if (PressControl* button = buttons_[row.action]; button && button->text() != text(row.label)) {
            button->setText(text(row.label));
        }
    }
}

void ActionsArea::build() {
    const bool hadKeyboard = holdsKeyboard(*this);
    empty(*column_);
    buttons_.clear();
    folds_.clear();
    marks_.clear();
    unfolded_ = Fold::none;
    std::vector<QWidget*> pair;
    for (const ActionRow& row : rows_) {
        if (row.action == Action::breakNow) {
            column_->addWidget(breakNow(row));
            column_->addWidget(otherBreaks());
        } else if (row.action == Action::snooze || row.action == Action::pause) {
            pair.push_back(row.action == Action::pause ? pauseButton(row) : button(row));
        } else if (row.action != Action::skip) {
            column_->addWidget(button(row));
        }
    }
    if (!pair.empty()) {
        column_->addWidget(besideEachOther(pair));
    }
    if (buttons_.contains(Action::pause)) {
        column_->addWidget(pauses());
    }
    if (const auto skip = std::ranges::find(rows_, Action::skip, &ActionRow::action); skip != rows_.end()) {
        column_->addWidget(button(*skip));
    }
    showNow(*column_);
    setVisible(!rows_.empty());
    if (const auto controls = inReadingOrder(*this); hadKeyboard && !controls.isEmpty()) {
        controls.front()->setFocus(Qt::TabFocusReason);
    }
}

QWidget* ActionsArea::button(const ActionRow& row) {
    StickerButton* made = sticker(row);
    QObject::connect(made, &QAbstractButton::clicked, this,
                     [this, action = row.action] { TrayActions::carryOut(action, model_); });
    buttons_[row.action] = made;
    return made;
}

QWidget* ActionsArea::breakNow(const ActionRow& row) {
    auto* others = new StickerButton(QString(), StickerButton::Kind::plain);
    others->setSymbol(Symbol::chevronDown);
    others->setAccessibleName(text(TrayWords::otherBreaks));
    others->setToolTip(text(TrayWords::otherBreaks));
    QObject::connect(others, &QAbstractButton::clicked, this, [this] { toggle(Fold::otherBreaks); });
    marks_[Fold::otherBreaks] = [others](bool open) {
        others->setSymbol(open ? Symbol::chevronUp : Symbol::chevronDown);
    };
    return besideEachOther({button(row), others});
}

QWidget* ActionsArea::pauseButton(const ActionRow& row) {
    StickerButton* made = sticker(row);
    // The mark that more unfolds stands behind the words.
    made->setLayoutDirection(layoutDirection() == Qt::LeftToRight ? Qt::RightToLeft : Qt::LeftToRight);
    QObject::connect(made, &QAbstractButton::clicked, this, [this] { toggle(Fold::pauses); });
    marks_[Fold::pauses] = [made](bool open) {
        made->setSymbol(open ? Symbol::chevronUp : Symbol::chevronDown);
    };
    buttons_[row.action] = made;
    return made;
}

QWidget* ActionsArea::besideEachOther(const std::vector<QWidget*>& widgets) {
    auto* row = new QWidget;
    auto* layout = bare<QHBoxLayout>(row);
    for (QWidget* widget : widgets) {
        layout->addWidget(widget);
    }
    return row;
}

QWidget* ActionsArea::otherBreaks() {
    auto* fold = new Well;
    auto* column = fold->column();
    std::vector<QWidget*> lengths;
    for (const auto& other : TrayWords::otherBreaksOf(model_.state().settings.value())) {
        const auto start = [this, other] { TrayActions::startOther(other, model_); };
        PressControl* made = nullptr;
        if (other.duration) {
            made = new StickerButton(text(other.label), StickerButton::Kind::quiet);
            made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
            lengths.push_back(made);
        } else {
            made = new MenuRow(text(other.label));
            column->addWidget(made);
        }
        QObject::connect(made, &QAbstractButton::clicked, this, start);
    }
    folds_[Fold::otherBreaks] = fold;
    column->addWidget(besideEachOther(lengths));
    fold->hide();
    return fold;
}

QWidget* ActionsArea::pauses() {
    auto* fold = new Well;
    auto* column = fold->column();
    for (const TrayWords::Pause& choice : TrayWords::pauses) {
        auto* row = new MenuRow(text(choice.label));
        QObject::connect(row, &QAbstractButton::clicked, this,
                         [this, choice] { TrayActions::pause(choice, model_); });
        column->addWidget(row);
    }
    folds_[Fold::pauses] = fold;
    fold->hide();
    return fold;
}

void ActionsArea::toggle(Fold fold) {
    unfolded_ = unfolded_ == fold ? Fold::none : fold;
    for (const auto& [each, widget] : folds_) {
        widget->setVisible(each == unfolded_);
        marks_[each](each == unfolded_);
    }
    changedSize();
}

} // namespace quietlark
