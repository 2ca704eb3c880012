#include "Quietlark/Platform/Linux/Hosting/X11Struts.h"

#include "Quietlark/Platform/Linux/X11/X11Reply.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace quietlark {

namespace {

constexpr std::uint32_t longestList = 4096; ///< numbers
constexpr std::uint32_t largest = 65535;    ///< pixels of any X screen
constexpr std::size_t shortNumbers = 4;
constexpr std::size_t longNumbers = 12;

/// In the order of the numbers.
constexpr std::array edges{Qt::LeftEdge, Qt::RightEdge, Qt::TopEdge, Qt::BottomEdge};

int pixels(std::uint32_t number) { return static_cast<int>(std::min(number, largest)); }

/// What lies within the strut: a rectangle along the edge of the root window.
QRect areaOf(const X11Strut& strut, const QSize& root) {
    const int length = strut.to - strut.from + 1;
    switch (strut.edge) {
    case Qt::LeftEdge: return {0, strut.from, strut.depth, length};
    case Qt::RightEdge: return {root.width() - strut.depth, strut.from, strut.depth, length};
    case Qt::TopEdge: return {strut.from, 0, length, strut.depth};
    case Qt::BottomEdge: return {strut.from, root.height() - strut.depth, length, strut.depth};
    }
    return {};
}

void takeFrom(QRect& free, Qt::Edge edge, const QRect& area) {
    switch (edge) {
    case Qt::LeftEdge: free.setLeft(std::max(free.left(), area.right() + 1)); break;
    case Qt::RightEdge: free.setRight(std::min(free.right(), area.left() - 1)); break;
    case Qt::TopEdge: free.setTop(std::max(free.top(), area.bottom() + 1)); break;
    case Qt::BottomEdge: free.setBottom(std::min(free.bottom(), area.top() - 1)); break;
    }
}

} // namespace

std::vector<X11Strut> x11Struts(std::span<const std::uint32_t> numbers) {
    std::vector<X11Strut> struts;
    const bool isLong = numbers.size() >= longNumbers;
    for (std::size_t place = 0; numbers.size() >= shortNumbers && place < edges.size(); ++place) {
        X11Strut strut{.edge = edges[place], .depth = pixels(numbers[place]), .to = pixels(largest)};
        if (isLong) {
            strut.from = pixels(numbers[shortNumbers + 2 * place]);
            strut.to = pixels(numbers[shortNumbers + 2 * place + 1]);
        }
        if (strut.depth > 0 && strut.to >= strut.from) {
            struts.push_back(strut);
        }
    }
    return struts;
}

QRect withoutStruts(const QRect& monitor, const QSize& root, std::span<const X11Strut> struts) {
    QRect free = monitor;
    for (const X11Strut& strut : struts) {
        const QRect area = areaOf(strut, root);
        QRect left = free;
        takeFrom(left, strut.edge, area);
        if (area.intersects(monitor) && left.isValid()) {
            free = left;
        }
    }
    return free;
}

X11Struts::X11Struts(X11Wire& wire, std::function<void()> changed)
    : wire_(wire), changed_(std::move(changed)), clientList_(wire.atom("_NET_CLIENT_LIST")),
      workAreaAtom_(wire.atom("_NET_WORKAREA")), shortForm_(wire.atom("_NET_WM_STRUT")),
      longForm_(wire.atom("_NET_WM_STRUT_PARTIAL")) {
    wire_.read([this](const xcb_generic_event_t& event) { take(event); });
    wire_.selectOnRoot(XCB_EVENT_MASK_PROPERTY_CHANGE, true);
    askClients();
    askWorkArea();
}

std::vector<X11Strut> X11Struts::struts() const {
    std::vector<X11Strut> all;
    for (const auto& [client, numbers] : clients_) {
        const auto own = x11Struts(numbers);
        all.insert(all.end(), own.begin(), own.end());
    }
    return all;
}

void X11Struts::take(const xcb_generic_event_t& event) {
    if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY) {
        return;
    }
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (change.atom == shortForm_ || change.atom == longForm_) {
        askStruts(change.window);
    } else if (change.window == wire_.root() && change.atom == clientList_) {
        askClients();
    } else if (change.window == wire_.root() && change.atom == workAreaAtom_) {
        askWorkArea();
    }
}

void X11Struts::askClients() {
    const auto cookie = xcb_get_property(wire_.get(), 0, wire_.root(), clientList_, XCB_GET_PROPERTY_TYPE_ANY,
                                         0, longestList);
    wire_.ask(cookie.sequence, [this](const void* reply) { followClients(propertyNumbers(reply)); });
}

void X11Struts::followClients(std::span<const std::uint32_t> clients) {
    const auto isGone = [&](const auto& entry) {
        return std::ranges::find(clients, entry.first) == clients.end();
    };
    const bool wasKeptFree = std::ranges::any_of(
        clients_, [&](const auto& entry) { return isGone(entry) && !entry.second.empty(); });
    std::erase_if(clients_, isGone);
    for (const xcb_window_t client : clients) {
        if (clients_.try_emplace(client).second) {
            askStruts(client);
        }
    }
    if (wasKeptFree) {
        changed_();
    }
}

/// Answers come in the order of the questions: the long form wins where both are set.
void X11Struts::askStruts(xcb_window_t client) {
    const auto found = clients_.find(client);
    if (found == clients_.end()) {
        return;
    }
    if (!std::exchange(found->second, {}).empty()) {
        changed_();
    }
    askStrut(client, shortForm_);
    askStrut(client, longForm_);
}

void X11Struts::askStrut(xcb_window_t client, xcb_atom_t form) {
    const auto cookie =
        xcb_get_property(wire_.get(), 0, client, form, XCB_GET_PROPERTY_TYPE_ANY, 0, longNumbers);
    wire_.ask(cookie.sequence, [this, client](const void* reply) {
        const auto numbers = propertyNumbers(reply);
        const auto found = clients_.find(client);
        if (numbers.empty() || found == clients_.end()) {
            return;
        }
        found->second.assign(numbers.begin(), numbers.end());
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(wire_.get(), client, XCB_CW_EVENT_MASK, &events);
        wire_.flush();
        changed_();
    });
}

/// One for each workspace; the first stands for all of them.
void X11Struts::askWorkArea() {
    const auto cookie = xcb_get_property(wire_.get(), 0, wire_.root(), workAreaAtom_,
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, shortNumbers);
    wire_.ask(cookie.sequence, [this](const void* reply) {
        const auto numbers = propertyNumbers(reply);
        workArea_.reset();
        if (numbers.size() == shortNumbers) {
            workArea_ = QRect(pixels(numbers[0]), pixels(numbers[1]), pixels(numbers[2]), pixels(numbers[3]));
        }
        changed_();
    });
}

} // namespace quietlark
