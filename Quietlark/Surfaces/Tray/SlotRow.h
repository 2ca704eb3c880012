#pragma once

#include "Quietlark/Surfaces/Tray/TrayWords.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace quietlark {

/// The row under the status: what the person may do about a wait, or why it goes on.
class SlotRow : public QWidget {
public:
    explicit SlotRow(QWidget* parent = nullptr);

    /// Nothing happens when it stands there already.
    void setSlot(const TrayWords::Slot& slot);

    /// Stands in place of the rest until it is taken away.
    void say(std::optional<QString> words);

    std::function<void()> dontWait = [] {};
    std::function<void()> waitAgain = [] {};

private:
    void build();
    void takeKeyboard();
    void add(const TrayWords::slot::None&) {}
    void add(const TrayWords::slot::DontWait& offer);
    void add(const TrayWords::slot::NotWaiting& controls);
    void add(const TrayWords::slot::ShareKeepsWaiting& note);
    void addWords(const QString& words);

    TrayWords::Slot slot_;
    std::optional<QString> said_;
};

} // namespace quietlark
