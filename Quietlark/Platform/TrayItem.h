#pragma once

#include <QImage>
#include <QPointF>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// A row of the menu that a panel shows itself.
struct TrayMenuRow {
    std::string label;              ///< empty: a line between groups
    std::function<void()> chosen{}; ///< empty: it can't be chosen
    std::vector<TrayMenuRow> rows{};
};

/// The program in the panel of the desktop. Where there is no panel nothing is to be seen, and whatever was set is
/// shown once there is one.
class TrayItem {
public:
    virtual ~TrayItem() = default;

    /// Whether a panel shows it now.
    virtual bool isShown() const = 0;

    /// Whether the panel is known to be dark or light; absent where nobody tells.
    virtual std::optional<bool> isPanelDark() const = 0;

    /// The picture in several sizes; the panel takes the one that fits.
    virtual void setPictures(std::vector<QImage> pictures) = 0;

    /// A few letters beside the picture, where the panel has room for such; empty for none.
    virtual void setTitle(const std::string& title) = 0;

    /// What is spoken, and shown under a pointer that rests on it.
    virtual void setLabel(const std::string& label) = 0;

    /// For panels that show a menu rather than pass clicks on, and for the button of the mouse that asks for one.
    virtual void setMenu(std::vector<TrayMenuRow> rows) = 0;

    /// A click, or a key that does the same. `place`: about where on the desktop, in its pixels; absent where the panel
    /// doesn't say.
    using Activated = std::function<void(std::optional<QPointF> place)>;
    virtual void observeActivation(Activated activated) = 0;
};

} // namespace quietlark
