#pragma once

#include "Quietlark/Surfaces/FrameTicker.h"
#include "Quietlark/Surfaces/Notes/Card.h"
#include "Quietlark/Surfaces/Notes/HeadsUpWords.h"
#include "Quietlark/Surfaces/Notes/NoteFace.h"
#include "Quietlark/Surfaces/Notes/RefreshSoon.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace quietlark {

/// The pill of the last seconds: a small pet, and what it counts or waits for.
class CountdownView : public QWidget {
public:
    static constexpr double height = 56;

    /// Once the note leaves, it stays as it is.
    CountdownView(const AppState& state, MainLoop& loop, const Appearance& appearance,
                  std::shared_ptr<const ObservedPresence> presence);

    /// Wide enough for all that it may come to say.
    double pillWidth() const { return width_; }

    void sizePet(double scale) { pet_.setScale(scale); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();
    void turn();
    double turned() const;
    bool reducesMotion() const;

    const AppState& state_;
    const MainLoop& loop_;
    std::shared_ptr<const ObservedPresence> presence_;
    double width_ = 0;
    NotePet pet_;
    HeadsUpWords::Pill words_;
    HeadsUpWords::Pill before_; ///< what it said before it turned
    wumble::Date turnedAt_;
    bool typedAlong_ = false; ///< the person has worked on while the pill was there
    RefreshSoon refreshing_;
    FrameTicker frames_;
    std::vector<QPropertyNotifier> observers_;
};

} // namespace quietlark
