#pragma once

#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Settings/SettingsWords.h"
#include "Quietlark/Windows/PaperView.h"

#include <functional>
#include <vector>

class QLayout;

namespace quietlark {

class CrewCard;
class Segments;
class StickerSwitch;
class TextBlock;

/// The choices of the person, each in force and kept as soon as it is made.
class SettingsView : public PaperView {
public:
    /// Both must outlive it; the login item may be missing, and its row with it.
    SettingsView(AppModel& model, LoginItem* loginItem, QWidget* parent = nullptr);

    /// The pets of the week or month that was asked for last.
    CrewCard& crew() { return *crew_; }

private:
    QWidget* breaks();
    QWidget* general();

    /// A row of choices of a number; what the settings have is among them.
    QLayout* numberRow(const SettingsWords::Row& words, std::vector<double> choices,
                       double wumble::WumbleSettings::*field);
    QLayout* longEveryRow();
    QLayout* nudgesRow();
    QLayout* appearanceRow();
    QLayout* soundRow(const SettingsWords::Row& words, bool wumble::WumbleSettings::*field);
    QLayout* volumeRow();
    QLayout* loginRow();
    void follow(std::function<void()> refresh);
    void refresh();

    const wumble::WumbleSettings& settings() const { return model_.state().settings.value(); }

    AppModel& model_;
    LoginItem* loginItem_;
    CrewCard* crew_ = nullptr;
    TextBlock* loginError_ = nullptr;
    std::vector<std::function<void()>> controls_; ///< each brings one control up to date
    std::vector<QPropertyNotifier> followed_;
};

} // namespace quietlark
