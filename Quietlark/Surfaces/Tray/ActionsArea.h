#pragma once

#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Surfaces/Tray/TrayWords.h"

#include <QWidget>

#include <functional>
#include <map>
#include <vector>

class QVBoxLayout;

namespace quietlark {

class PressControl;

/// The buttons of what the phase allows. Further choices unfold below the button that offers them, one set at a time.
class ActionsArea : public QWidget {
public:
    /// The model must outlive it.
    explicit ActionsArea(AppModel& model, QWidget* parent = nullptr);

    /// The same actions keep their buttons, whatever their words become.
    void setRows(const std::vector<TrayWords::ActionRow>& rows);

    /// Without calling `changedSize`.
    void foldUp() { unfold(Fold::none); }

    /// Called when something was unfolded, or folded: then with nothing.
    std::function<void(QWidget* unfolded)> changedSize = [](auto) {};

private:
    enum class Fold { none, otherBreaks, pauses };

    void build();
    QWidget* button(const TrayWords::ActionRow& row);
    QWidget* breakNow(const TrayWords::ActionRow& row);
    QWidget* pauseButton(const TrayWords::ActionRow& row);
    static QWidget* besideEachOther(const std::vector<QWidget*>& widgets);
    QWidget* otherBreaks();
    QWidget* pauses();
    void toggle(Fold fold);
    void unfold(Fold fold);

    AppModel& model_;
    std::vector<TrayWords::ActionRow> rows_;
    std::map<TrayWords::Action, PressControl*> buttons_;
    Fold unfolded_ = Fold::none;
    std::map<Fold, QWidget*> folds_;
    std::map<Fold, std::function<void(bool unfolded)>> marks_;
    QVBoxLayout* column_;
};

} // namespace quietlark
