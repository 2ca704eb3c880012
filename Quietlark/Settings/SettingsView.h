#pragma once

#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Settings/SettingsWords.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace quietlark {

class Segments;
class StickerSwitch;
class TextBlock;

/// The choices of the person, each in force and kept as soon as it is made.
class SettingsView : public QWidget {
public:
    /// Both must outlive it; the login item may be missing, and its row with it.
    SettingsView(AppModel& model, LoginItem* loginItem, QWidget* parent = nullptr);

    /// Called when `sizeHint` has become another.
    std::function<void()> wantsOtherSize = [] {};

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* breaks();
    QWidget* general();
    QWidget* row(const SettingsWords::Row& words, QWidget* control);

    /// A row of choices of a number; what the settings have is among them.
    QWidget* numberRow(const SettingsWords::Row& words, std::vector<double> choices,
                       double wumble::WumbleSettings::*field);
    QWidget* longEveryRow();
    QWidget* nudgesRow();
    QWidget* appearanceRow();
    QWidget* soundsRow();
    QWidget* volumeRow();
    QWidget* loginRow();
    void follow(std::function<void()> refresh);
    void refresh();

    const wumble::WumbleSettings& settings() const { return model_.state().settings.value(); }

    AppModel& model_;
    LoginItem* loginItem_;
    TextBlock* loginError_ = nullptr;
    std::vector<std::function<void()>> controls_; ///< each brings one control up to date
    std::vector<QPropertyNotifier> followed_;
};

} // namespace quietlark
