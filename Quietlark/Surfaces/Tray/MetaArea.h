#pragma once

#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Surfaces/Tray/TrayActions.h"

#include <QWidget>

#include <functional>

namespace quietlark {

class MenuRow;
class TextBlock;

/// The day's counts, the ways to the crew and to the settings, and what is seldom wanted.
class MetaArea : public QWidget {
public:
    /// The model must outlive it. `close` closes the popover.
    MetaArea(AppModel& model, TrayDoors doors, std::function<void()> close, QWidget* parent = nullptr);

    void refresh();

    /// Without calling `changedSize`.
    void foldUp() { fold_->hide(); }

    /// Called when something was unfolded, or folded: then with nothing.
    std::function<void(QWidget* unfolded)> changedSize = [](auto) {};

private:
    QWidget* countsRow();
    QWidget* settingsRow();
    QWidget* fold();
    MenuRow* folded(std::string_view label, std::function<void()> chosen);
    void toggleFold();

    AppModel& model_;
    TrayDoors doors_;
    std::function<void()> close_;
    TextBlock* counts_ = nullptr;
    MenuRow* crew_ = nullptr;
    QWidget* fold_ = nullptr;
    MenuRow* running_ = nullptr;
};

} // namespace quietlark
