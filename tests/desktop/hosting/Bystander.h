#pragma once

#include <QRect>

#include <cstdint>
#include <string>
#include <vector>

#include <xcb/xcb.h>

namespace quietlark::test {

enum class Manager { asked, passed };

/// A plain window of another program, in one colour, that notes which buttons and keys it gets.
class Bystander {
public:
    Bystander(const QRect& frame, Manager manager, std::uint32_t colour);
    ~Bystander();
    Bystander(const Bystander&) = delete;
    Bystander& operator=(const Bystander&) = delete;

    xcb_window_t id() const { return window_; }

    void map();
    void raise();
    /// Before it is mapped.
    void askForFullScreen();
    void setNumbers(const std::string& property, const std::vector<std::uint32_t>& numbers,
                    xcb_atom_t type = XCB_ATOM_CARDINAL);
    xcb_atom_t atom(const std::string& name) const;

    bool isViewable() const;
    bool hasFocus() const;

    /// Whether it got it.
    bool grabKeyboard();
    void ungrabKeyboard();

    int presses();
    int keys();

private:
    void takeEvents();

    xcb_connection_t* connection_;
    xcb_screen_t* screen_;
    xcb_window_t window_;
    int presses_ = 0;
    int keys_ = 0;
};

} // namespace quietlark::test
