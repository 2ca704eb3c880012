#pragma once

#include "Quietlark/Platform/LoginItem.h"
#include "Quietlark/Welcome/WelcomeForm.h"
#include "Quietlark/Windows/PaperView.h"

#include <functional>
#include <optional>

namespace quietlark {

class Segments;
class MenuRow;
class StickerSwitch;
class TextBlock;
class WumbleView;

/// The first run: the pet says hello, and the person picks a rhythm. Two ways lead out of it, and both are told to
/// `done`.
class WelcomeView : public PaperView {
public:
    /// Both must outlive it; the login item may be missing, and its row with it.
    WelcomeView(AppModel& model, LoginItem* loginItem, QWidget* parent = nullptr);

    std::function<void(AppModel::AfterWelcome)> done = [](auto) {};

    /// What was picked; absent when the form was left alone.
    std::optional<WelcomeRhythm> rhythm() const;

    /// Absent when the switch was left alone.
    std::optional<bool> openAtLogin() const { return openAtLogin_; }

    void refresh();

private:
    QWidget* hello();
    QWidget* rhythmCard();
    QWidget* summaries();
    QWidget* details();
    QWidget* loginCard();
    QWidget* actions();
    Segments* choices(const std::vector<double>& seconds, const QStringList& words, double current,
                      void (WelcomeForm::*choose)(double));
    Segments* nudges();
    void customize(bool open);
    void switchLogin(bool on);

    AppModel& model_;
    LoginItem* loginItem_;
    WelcomeForm form_;
    std::optional<bool> openAtLogin_;
    bool customizing_ = false;
    WumbleView* pet_ = nullptr;
    TextBlock* quick_ = nullptr;
    TextBlock* long_ = nullptr;
    MenuRow* fold_ = nullptr;
    QWidget* details_ = nullptr;
    StickerSwitch* login_ = nullptr;
    TextBlock* loginError_ = nullptr;
    QPropertyNotifier loginErrorWatch_;
};

} // namespace quietlark
