#include "Quietlark/Settings/CrewCard.h"

#include "Quietlark/Settings/CrewShelf.h"
#include "Quietlark/Settings/CrewWords.h"
#include "Quietlark/Surfaces/TextBlock.h"
#include "Quietlark/Theme/Text.h"

#include <QVBoxLayout>

namespace quietlark {

CrewCard::CrewCard(AppModel& model, QWidget* parent)
    : PaperCard(parent), model_(model), shelf_(new CrewShelf),
      summary_(new TextBlock({}, {.token = TypeToken::body, .mostLines = 4})),
      totals_(new TextBlock({}, {.token = TypeToken::callout, .ink = Role::textMuted, .mostLines = 3})) {
    column()->addWidget(new TextBlock(text(CrewWords::yourCrew), {.token = TypeToken::title}));
    column()->addWidget(shelf_);
    column()->addWidget(summary_);
    column()->addWidget(totals_);
    followed_.push_back(observe(model_.state().life, [this] { refresh(); }));
    followed_.push_back(observe(model_.state().history, [this] { refresh(); }));
    refresh();
}

void CrewCard::show(const CrewAnchor& anchor) {
    anchor_ = anchor;
    refresh();
    model_.markSeen(model_.recap(anchor.period, anchor.date));
}

void CrewCard::refresh() {
    const wumble::Date now = model_.state().now.value();
    const CrewAnchor at = anchor_.value_or(CrewAnchor{.date = now});
    const wumble::Recap recap = model_.recap(at.period, at.date);
    shelf_->setRecap(recap, now, model_.calendar());
    summary_->setText(text(CrewWords::summary(recap, now)));
    totals_->setText(text(CrewWords::totals(recap)));
    changedSize();
}

} // namespace quietlark
