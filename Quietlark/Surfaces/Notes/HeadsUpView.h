#pragma once

#include "Quietlark/Surfaces/FrameTicker.h"
#include "Quietlark/Surfaces/Notes/Card.h"
#include "Quietlark/Surfaces/Notes/HeadsUpAnswer.h"
#include "Quietlark/Surfaces/Notes/HeadsUpWords.h"
#include "Quietlark/Surfaces/Notes/NoteFace.h"
#include "Quietlark/Surfaces/Notes/RefreshSoon.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quietlark {

class StickerButton;

/// The card that announces a break: the pet, when the break comes, and what can be done about it. Once something was
/// done, it turns into the answer.
class HeadsUpView : public QWidget {
public:
    static constexpr QSizeF cardSize{410, 132};

    /// What the view follows besides the model.
    struct Followed {
        std::shared_ptr<const ObservedPresence> presence; ///< once it leaves, it stays as it is
        std::shared_ptr<const QProperty<HeadsUpAnswer>> answer;
        std::shared_ptr<const QProperty<WumbleHello>> hello;
    };

    /// `choices` says what the person may do; it is asked whenever the state changes.
    HeadsUpView(const AppState& state, std::function<HeadsUpWords::Choices()> choices, MainLoop& loop,
                Followed followed);
    ~HeadsUpView() override;

    void sizePet(double scale) { pet_.setScale(scale); }

    std::function<void(bool inside)> onHover = [](bool) {};
    std::function<void(const HeadsUpWords::Button&)> onPress = [](const auto&) {};

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// All of it that follows from the model.
    struct Content {
        std::string headline;
        std::vector<std::string> statusLines;
        std::vector<HeadsUpWords::Button> buttons;

        bool operator==(const Content&) const = default;
    };

    void follow();
    Content content() const;
    void refresh();
    void greet();
    void turnIntoAnswer();
    void rebuildButtons();
    void placeButtons(const Appearance& appearance);
    void morph();
    double morphed() const;
    void drawWords(QPainter& painter, const Appearance& wanted) const;
    void drawAnswer(QPainter& painter, const Appearance& appearance) const;

    const AppState& state_;
    std::function<HeadsUpWords::Choices()> choices_;
    const MainLoop& loop_;
    Followed followed_;
    Content content_;
    NotePet pet_;
    std::vector<StickerButton*> buttons_;
    std::optional<Appearance> placedFor_; ///< that the buttons have their size for
    RefreshSoon refreshing_;
    FrameTicker frames_;
    std::vector<QPropertyNotifier> observers_;
};

} // namespace quietlark
