#pragma once

#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Windows/PaperCard.h"

namespace quietlark {

class CrewShelf;
class TextBlock;

/// The pets of one week or month, and what was done in it.
class CrewCard : public PaperCard {
public:
    /// The model must outlive it. It shows the week of now.
    explicit CrewCard(AppModel& model, QWidget* parent = nullptr);

    /// From then on the recap around that date, which counts as seen.
    void show(const CrewAnchor& anchor);

    std::function<void()> changedSize = [] {};

private:
    void refresh();

    AppModel& model_;
    std::optional<CrewAnchor> anchor_; ///< absent: this week
    CrewShelf* shelf_;
    TextBlock* summary_;
    TextBlock* totals_;
    std::vector<QPropertyNotifier> followed_;
};

} // namespace quietlark
