#include "Quietlark/Platform/Linux/X11/X11Windows.h"

#include "Quietlark/Platform/Linux/X11/X11Reply.h"

#include <algorithm>
#include <utility>

#include <xcb/res.h>

namespace quietlark {

namespace {

constexpr std::uint32_t longestProperty = 4096; ///< in 32-bit units

void select(const X11Server& server, xcb_window_t window, std::uint32_t events) {
    xcb_change_window_attributes(server.get(), window, XCB_CW_EVENT_MASK, &events);
}

} // namespace

void X11Windows::take(const xcb_generic_event_t& event) {
    const int type = event.response_type & 0x7f;
    if (type == XCB_DESTROY_NOTIFY) {
        const auto window = reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window;
        if (window == manager_) {
            manager_.reset();
            isPublished_ = false;
        }
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        const X11Server& server = *connection_.server();
        if (change.window == server.root) {
            takeRootChange(change.atom);
        } else if (change.atom == server.atom(X11Atom::windowStrut) ||
                   change.atom == server.atom(X11Atom::windowStrutPartial)) {
            areStrutsOld_ = true;
        }
    }
}

void X11Windows::takeRootChange(xcb_atom_t atom) {
    const X11Server& server = *connection_.server();
    for (RootProperty& property : rootProperties_) {
        property.isChanged = property.isChanged || atom == server.atom(property.name);
    }
    areStrutsOld_ = areStrutsOld_ || atom == server.atom(X11Atom::workArea);
}

void X11Windows::ask() {
    for (RootProperty& property : rootProperties_) {
        if (std::exchange(property.isChanged, false)) {
            askRootProperty(property);
        }
    }
    if (std::exchange(areStrutsOld_, false)) {
        for (const auto& [window, client] : clients_) {
            askStruts(window);
        }
    }
}

unsigned X11Windows::requestProperty(xcb_window_t window, X11Atom name) {
    const X11Server& server = *connection_.server();
    return xcb_get_property(server.get(), 0, window, server.atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0,
                            longestProperty)
        .sequence;
}

void X11Windows::askCounted(unsigned sequence, X11Connection::Answer answer) {
    ++unanswered_;
    isPublished_ = false;
    connection_.ask(sequence, [this, answer = std::move(answer)](const void* reply) {
        --unanswered_;
        answer(reply);
    });
}

void X11Windows::askProperty(xcb_window_t window, X11Atom name, X11Connection::Answer answer) {
    askCounted(requestProperty(window, name), std::move(answer));
}

void X11Windows::askRootProperty(RootProperty& property) {
    askProperty(connection_.server()->root, property.name, [this, &property](const void* reply) {
        const auto numbers = propertyNumbers(reply);
        property.numbers.assign(numbers.begin(), numbers.end());
        if (property.name == X11Atom::supportingWindowManager) {
            askManager();
        } else {
            followClients();
        }
    });
}

/// A window manager that died leaves its properties on the root window, but not the window that they name.
void X11Windows::askManager() {
    manager_.reset();
    const auto named = numbers(X11Atom::supportingWindowManager);
    if (named.empty()) {
        return;
    }
    select(*connection_.server(), named.front(), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    askProperty(named.front(), X11Atom::supportingWindowManager,
                [this, window = named.front()](const void* reply) {
                    const auto confirmed = propertyNumbers(reply);
                    if (!confirmed.empty() && confirmed.front() == window) {
                        manager_ = window;
                    }
                });
}

void X11Windows::followClients() {
    const auto isKept = [this](xcb_window_t window) {
        return window == active() || std::ranges::find(managed(), window) != managed().end();
    };
    std::erase_if(clients_, [&](const auto& entry) { return !isKept(entry.first); });
    std::vector<xcb_window_t> wanted(managed().begin(), managed().end());
    wanted.push_back(active());
    for (const xcb_window_t window : wanted) {
        if (window != XCB_NONE && clients_.try_emplace(window).second) {
            askIdentity(window);
            askStruts(window);
        }
    }
}

void X11Windows::askIdentity(xcb_window_t window) {
    askProperty(window, X11Atom::windowClass, [this, window](const void* reply) {
        if (X11Client* known = client(window)) {
            known->windowClass = x11WindowClass(propertyBytes(reply));
        }
    });
    askProperty(window, X11Atom::windowPid, [this, window](const void* reply) {
        const auto numbers = propertyNumbers(reply);
        if (X11Client* known = client(window); known && !numbers.empty()) {
            known->pid = static_cast<int>(numbers.front());
        }
    });
    if (connection_.server()->hasClientIds) {
        const xcb_res_client_id_spec_t spec{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
        const auto cookie = xcb_res_query_client_ids(connection_.server()->get(), 1, &spec);
        askCounted(cookie.sequence, [this, window](const void* reply) {
            const int pid = x11ClientPid(reply);
            if (X11Client* known = client(window); known && pid > 0) {
                known->pid = pid;
            }
        });
    }
}

/// Answers come in order: the long form wins where both are set.
void X11Windows::askStruts(xcb_window_t window) {
    if (X11Client* known = client(window)) {
        known->topStrut.reset();
    }
    askStrut(window, X11Atom::windowStrut);
    askStrut(window, X11Atom::windowStrutPartial);
}

void X11Windows::askStrut(xcb_window_t window, X11Atom form) {
    askProperty(window, form, [this, window](const void* reply) {
        const auto numbers = propertyNumbers(reply);
        X11Client* known = client(window);
        if (!known || numbers.empty()) {
            return;
        }
        known->topStrut = x11TopStrut(numbers, rootWidth());
        select(*connection_.server(), window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    });
}

double X11Windows::rootWidth() const {
    return xcb_setup_roots_iterator(xcb_get_setup(connection_.server()->get())).data->width_in_pixels;
}

std::span<const std::uint32_t> X11Windows::numbers(X11Atom name) const {
    return std::ranges::find(rootProperties_, name, &RootProperty::name)->numbers;
}

std::span<const std::uint32_t> X11Windows::managed() const {
    const auto stacking = numbers(X11Atom::clientListStacking);
    return stacking.empty() ? numbers(X11Atom::clientList) : stacking;
}

xcb_window_t X11Windows::active() const {
    const auto named = numbers(X11Atom::activeWindow);
    return named.empty() ? xcb_window_t{XCB_NONE} : named.front();
}

X11Client* X11Windows::client(xcb_window_t window) {
    const auto found = clients_.find(window);
    return found == clients_.end() ? nullptr : &found->second;
}

AppWindow X11Windows::appWindow(xcb_window_t window) const {
    const auto found = clients_.find(window);
    return found == clients_.end() ? AppWindow{window, 0, {}}
                                   : AppWindow{window, found->second.pid, found->second.windowClass};
}

void X11Windows::conclude() {
    if (unanswered_ > 0 || std::exchange(isPublished_, true)) {
        return;
    }
    hasAnswered_ = true;
    front_.reset();
    stacking_.clear();
    topStruts_.clear();
    if (!manager_) {
        return;
    }
    if (isActiveWindowThere()) {
        front_ = appWindow(active());
    }
    for (const xcb_window_t window : managed()) {
        // Whoever writes the list may write anything into it.
        const X11Client* known = client(window);
        if (!known) {
            continue;
        }
        stacking_.push_back(appWindow(window));
        if (known->topStrut) {
            topStruts_.push_back(*known->topStrut);
        }
    }
}

std::optional<std::uint32_t> X11Windows::currentDesktop() const {
    const auto told = numbers(X11Atom::currentDesktop);
    return told.empty() ? std::nullopt : std::optional(told.front());
}

bool X11Windows::isSupported(X11Atom feature) const {
    const auto supported = numbers(X11Atom::supported);
    return std::ranges::find(supported, connection_.server()->atom(feature)) != supported.end();
}

bool X11Windows::canActivate() const { return manager_ && isSupported(X11Atom::activeWindow); }

/// Some window managers go on naming the last window after it was destroyed; its number may be another program's by
/// then.
bool X11Windows::isActiveWindowThere() const {
    const bool isListed = std::ranges::find(managed(), active()) != managed().end();
    return active() != XCB_NONE && (isListed || !isSupported(X11Atom::clientList));
}

} // namespace quietlark
