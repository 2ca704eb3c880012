#pragma once

#include <QAbstractButton>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

// A view as somebody finds it who goes by what a screen reader says.
namespace quietlark::test {

/// The buttons that can be seen, by their names.
inline std::vector<std::string> buttonsIn(const QWidget& view) {
    std::vector<std::string> names;
    for (const auto* button : view.findChildren<QAbstractButton*>()) {
        if (button->isVisibleTo(&view)) {
            names.push_back(button->accessibleName().toStdString());
        }
    }
    return names;
}

/// The one of that name which can be seen; none: null.
inline QAbstractButton* buttonIn(const QWidget& view, const std::string& name) {
    const auto buttons = view.findChildren<QAbstractButton*>();
    const auto found = std::ranges::find_if(buttons, [&](const QAbstractButton* button) {
        return button->isVisibleTo(&view) && button->accessibleName().toStdString() == name;
    });
    return found == buttons.end() ? nullptr : *found;
}

inline void press(const QWidget& view, const std::string& name) {
    auto* button = buttonIn(view, name);
    ASSERT_NE(button, nullptr) << "no " << name;
    button->click();
}

/// Whether these words stand there.
inline bool shows(const QWidget& view, const std::string& words) {
    return std::ranges::any_of(view.findChildren<QWidget*>(), [&](const QWidget* widget) {
        return widget->isVisibleTo(&view) && widget->accessibleName().toStdString() == words;
    });
}

} // namespace quietlark::test
