#pragma once

#include "Quietlark/Platform/Linux/X11/X11Client.h"
#include "Quietlark/Platform/Linux/X11/X11Connection.h"
#include "Quietlark/Platform/WindowSystem.h"

#include <array>
#include <map>
#include <optional>
#include <span>
#include <vector>

namespace quietlark {

/// What a window manager says of the windows that it manages. Followed by the changes that it announces: nothing is
/// asked while nothing changes.
class X11Windows {
public:
    /// `connection` outlives this.
    explicit X11Windows(X11Connection& connection) : connection_(connection) {}

    void take(const xcb_generic_event_t& event);
    void ask();

    /// Publishes what has become known, as soon as all of it has.
    void conclude();

    bool hasAnswered() const { return hasAnswered_; }
    const std::optional<AppWindow>& front() const { return front_; }
    const std::vector<AppWindow>& stacking() const { return stacking_; } ///< from the bottom to the top
    const std::vector<X11TopStrut>& topStruts() const { return topStruts_; }

    /// Absent where the window manager knows of one workspace only.
    std::optional<std::uint32_t> currentDesktop() const;

    /// Whether the window manager brings a window to the front when asked.
    bool canActivate() const;

private:
    struct RootProperty {
        X11Atom name;
        std::vector<std::uint32_t> numbers;
        bool isChanged = true;
    };

    void takeRootChange(xcb_atom_t atom);
    void askRootProperty(RootProperty& property);
    void askManager();
    void askStruts(xcb_window_t window);
    void askStrut(xcb_window_t window, X11Atom form);
    void askIdentity(xcb_window_t window);
    void followClients();
    unsigned requestProperty(xcb_window_t window, X11Atom name);
    void askProperty(xcb_window_t window, X11Atom name, X11Connection::Answer answer);
    void askCounted(unsigned sequence, X11Connection::Answer answer);
    std::span<const std::uint32_t> numbers(X11Atom name) const;
    std::span<const std::uint32_t> managed() const;
    xcb_window_t active() const;
    bool isActiveWindowThere() const;
    bool isSupported(X11Atom feature) const;
    X11Client* client(xcb_window_t window);
    AppWindow appWindow(xcb_window_t window) const;
    double rootWidth() const;

    X11Connection& connection_;
    std::array<RootProperty, 6> rootProperties_{{{X11Atom::supportingWindowManager, {}},
                                                 {X11Atom::supported, {}},
                                                 {X11Atom::currentDesktop, {}},
                                                 {X11Atom::activeWindow, {}},
                                                 {X11Atom::clientList, {}},
                                                 {X11Atom::clientListStacking, {}}}};
    std::map<xcb_window_t, X11Client> clients_;
    std::optional<xcb_window_t> manager_; ///< the window that shows that a window manager lives
    int unanswered_ = 0;
    bool isPublished_ = false;
    bool hasAnswered_ = false;
    bool areStrutsOld_ = false;

    std::optional<AppWindow> front_;
    std::vector<AppWindow> stacking_;
    std::vector<X11TopStrut> topStruts_;
};

} // namespace quietlark
