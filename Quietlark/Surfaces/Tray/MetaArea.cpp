#include "Quietlark/Surfaces/Tray/MetaArea.h"

#include "Quietlark/Surfaces/TextBlock.h"
#include "Quietlark/Surfaces/Tray/MenuRow.h"
#include "Quietlark/Surfaces/Tray/Well.h"
#include "Quietlark/Theme/Controls/IconButton.h"
#include "Quietlark/Theme/Text.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

namespace quietlark {

namespace {

constexpr int countsInset = PressControl::margin + 10; ///< in line with the symbols of the rows
constexpr int countsAir = 6;

template <class Layout> Layout* bare(QWidget* widget) {
    auto* layout = new Layout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace

MetaArea::MetaArea(AppModel& model, TrayDoors doors, std::function<void()> close, QWidget* parent)
    : QWidget(parent), model_(model), doors_(std::move(doors)), close_(std::move(close)) {
    auto* column = bare<QVBoxLayout>(this);
    column->addWidget(countsRow());
    crew_ = new MenuRow(text(TrayWords::crew));
    crew_->setSymbol(Symbol::grid);
    QObject::connect(crew_, &QAbstractButton::clicked, this, [this] {
        close_();
        TrayActions::openCrew(model_);
    });
    column->addWidget(crew_);
    column->addWidget(settingsRow());
    column->addWidget(fold());
}

QWidget* MetaArea::countsRow() {
    auto* row = new QWidget;
    auto* layout = bare<QHBoxLayout>(row);
    layout->setContentsMargins(countsInset, countsAir, countsInset, countsAir);
    layout->setSpacing(countsAir * 2);
    layout->addWidget(new TextBlock(text(TrayWords::today), {.weight = QFont::DemiBold}));
    counts_ = new TextBlock({}, {.ink = Role::textMuted, .alignment = Qt::AlignRight, .mostLines = 2});
    layout->addWidget(counts_, 1);
    return row;
}

QWidget* MetaArea::settingsRow() {
    auto* row = new QWidget;
    auto* layout = bare<QHBoxLayout>(row);
    auto* settings = new MenuRow(text(TrayWords::settings));
    settings->setSymbol(Symbol::gear);
    QObject::connect(settings, &QAbstractButton::clicked, this, [this] {
        close_();
        doors_.openSettings();
    });
    layout->addWidget(settings, 1);
    auto* more = new IconButton(Symbol::ellipsis, text(TrayWords::more));
    more->setToolTip(text(TrayWords::more));
    QObject::connect(more, &QAbstractButton::clicked, this, [this] { toggleFold(); });
    layout->addWidget(more);
    return row;
}

QWidget* MetaArea::fold() {
    auto* well = new Well;
    auto* column = well->column();
    fold_ = well;
    column->addWidget(folded(TrayWords::restart, [this] { model_.restart(); }));
    running_ = folded(TrayWords::turnOff, [this] { model_.toggleRunning(); });
    column->addWidget(running_);
    column->addWidget(folded(TrayWords::quit, [this] {
        close_();
        doors_.quit();
    }));
    fold_->hide();
    return fold_;
}

MenuRow* MetaArea::folded(std::string_view label, std::function<void()> chosen) {
    auto* row = new MenuRow(text(label));
    QObject::connect(row, &QAbstractButton::clicked, this, std::move(chosen));
    return row;
}

void MetaArea::toggleFold() {
    fold_->setVisible(fold_->isHidden());
    changedSize(fold_->isHidden() ? nullptr : fold_);
}

void MetaArea::refresh() {
    const AppState& state = model_.state();
    counts_->setText(text(TrayWords::todayCounts(model_.todaySummary())));
    const auto waiting = model_.unseenRecap();
    crew_->setDetail(waiting ? text(TrayWords::recapLine(*waiting, state.now.value())) : QString());
    crew_->setToolTip(waiting ? QString() : text(TrayWords::crewHelp));
    crew_->setMarked(waiting.has_value());
    const bool isStopped = std::holds_alternative<wumble::phase::Stopped>(state.phase.value());
    running_->setText(text(isStopped ? TrayWords::wakeUp : TrayWords::turnOff));
}

} // namespace quietlark
