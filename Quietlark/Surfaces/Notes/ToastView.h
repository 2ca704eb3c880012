#pragma once

#include "Quietlark/Surfaces/Notes/NoteFace.h"
#include "WumbleCore/Words/Toast.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace quietlark {

/// A message with the pet beside it. A click on it does what the message offers.
class ToastView : public QWidget {
public:
    static constexpr double width = 420;
    static constexpr double usualHeight = 96;
    static constexpr double tallHeight = 110; ///< with a subtitle that needs it

    ToastView(const wumble::Toast& toast, const wumble::WumbleDay& day, const MainLoop& loop,
              const Appearance& appearance);

    /// By its words.
    QSizeF noteSize() const { return {width, height_}; }

    void sizePet(double scale) { pet_->setScale(scale); }

    std::function<void()> onTap = [] {};
    std::function<void()> onClose = [] {};
    std::function<void(bool inside)> onHover = [](bool) {};

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void addCloseControl();

    wumble::Toast toast_;
    double height_ = usualHeight;
    std::optional<NotePet> pet_;
    bool pressed_ = false;
};

} // namespace quietlark
