#include "Quietlark/Platform/Linux/Hosting/X11Outside.h"

#include "Quietlark/Platform/Linux/X11/X11Reply.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <utility>

namespace quietlark {

namespace {

/// The wheel presses buttons as well.
bool isWheel(std::uint32_t button) { return button >= 4 && button <= 7; }

/// When our own windows were pressed last: what was pressed there may be gone before the press is told of from the
/// root.
class OwnPresses : public QObject {
public:
    std::optional<xcb_timestamp_t> last;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
            last = static_cast<xcb_timestamp_t>(static_cast<QMouseEvent*>(event)->timestamp());
        }
        return false;
    }
};

} // namespace

/// Lives as long as anybody wants to know.
struct X11Outside::Wanting {
    explicit Wanting(X11RawInput& input) : rawInput(input) {
        rawInput.wantButtons(true);
        QCoreApplication::instance()->installEventFilter(&own);
    }
    ~Wanting() { rawInput.wantButtons(false); }
    Wanting(const Wanting&) = delete;
    Wanting& operator=(const Wanting&) = delete;

    X11RawInput& rawInput;
    OwnPresses own;
};

X11Outside::X11Outside(X11Wire& wire, X11RawInput& rawInput, std::function<bool(xcb_window_t)> isOurs)
    : wire_(wire), rawInput_(rawInput), isOurs_(std::move(isOurs)),
      activeWindow_(wire.atom("_NET_ACTIVE_WINDOW")) {
    wire_.read([this](const xcb_generic_event_t& event) { take(event); });
    rawInput_.whenButtonPressed([this](X11RawInput::Press press) { pressed(press); });
}

X11Outside::Subscription X11Outside::observe(std::function<void()> left) {
    auto wanting = wanting_.lock();
    if (!wanting) {
        wanting = std::make_shared<Wanting>(rawInput_);
        wanting_ = wanting;
        front_.reset();
        askFront();
    }
    return std::make_shared<std::pair<std::shared_ptr<Wanting>, Subscription>>(
        wanting, observers_.add(std::move(left)));
}

void X11Outside::take(const xcb_generic_event_t& event) {
    if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY || wanting_.expired()) {
        return;
    }
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (change.window == wire_.root() && change.atom == activeWindow_) {
        askFront();
    }
}

void X11Outside::askFront() {
    const auto cookie =
        xcb_get_property(wire_.get(), 0, wire_.root(), activeWindow_, XCB_GET_PROPERTY_TYPE_ANY, 0, 1);
    wire_.ask(cookie.sequence, [this](const void* reply) {
        const auto numbers = propertyNumbers(reply);
        tookFront(numbers.empty() ? xcb_window_t{XCB_NONE} : numbers.front());
    });
}

/// None is in front for a moment while windows change places.
void X11Outside::tookFront(xcb_window_t front) {
    const bool isFirst = !front_;
    if (!isFirst && (front == XCB_NONE || front == *front_)) {
        return;
    }
    front_ = front;
    if (!isFirst) {
        observers_.tell();
    }
}

bool X11Outside::wasForUs(X11RawInput::Press press) const {
    const auto wanting = wanting_.lock();
    return wanting && wanting->own.last == press.time;
}

void X11Outside::pressed(X11RawInput::Press press) {
    if (isWheel(press.button)) {
        return;
    }
    wire_.ask(xcb_query_pointer(wire_.get(), wire_.root()).sequence, [this, press](const void* reply) {
        const auto* place = static_cast<const xcb_query_pointer_reply_t*>(reply);
        if (!wasForUs(press) && (!place || !isOurs_(place->child))) {
            observers_.tell();
        }
    });
}

} // namespace quietlark
