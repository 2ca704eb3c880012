#include "Quietlark/Platform/Linux/X11/XEmbedIcon.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <mutex>
#include <thread>
#include <utility>

namespace quietlark {

namespace {

constexpr std::uint8_t sentByAClient = 0x80;
constexpr std::uint8_t translucentDepth = 32;
constexpr std::uint8_t lastClickButton = 3; ///< those above it are wheels

template <class Event> const Event& as(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);
}

/// The smallest that fills the square, or the largest there is.
QImage fitting(const std::vector<QImage>& pictures, int side) {
    const auto found =
        std::ranges::find_if(pictures, [&](const QImage& each) { return each.width() >= side; });
    return found != pictures.end() ? *found : pictures.back();
}

} // namespace

struct XEmbedIcon::Attempt {
    std::mutex mutex;
    XEmbedIcon* icon = nullptr; ///< who still waits for it; without one the main thread may be gone
    std::unique_ptr<XEmbedDock> made;
};

XEmbedIcon::~XEmbedIcon() { leave(); }

void XEmbedIcon::setWanted(bool wanted) {
    if (std::exchange(wanted_, wanted) == wanted) {
        return;
    }
    if (wanted) {
        look();
    } else {
        leave();
    }
}

/// On a thread of its own: a server that hangs hangs nobody else.
void XEmbedIcon::look() {
    leave();
    attempt_ = std::make_shared<Attempt>();
    attempt_->icon = this;
    std::thread([attempt = attempt_, display = display_] {
        attempt->made = XEmbedDock::make(display);
        const auto arrive = [attempt] {
            if (attempt->icon != nullptr) {
                attempt->icon->take(std::move(attempt->made));
            }
        };
        const std::scoped_lock lock(attempt->mutex);
        if (attempt->icon != nullptr) {
            QMetaObject::invokeMethod(QCoreApplication::instance(), arrive, Qt::QueuedConnection);
        }
    }).detach();
}

void XEmbedIcon::take(std::unique_ptr<XEmbedDock> dock) {
    attempt_.reset();
    dock_ = std::move(dock);
    size_ = {XEmbedDock::firstSide, XEmbedDock::firstSide};
    if (!dock_) {
        return;
    }
    const int socket = xcb_get_file_descriptor(dock_->connection.get());
    arrivals_ = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
    QObject::connect(arrivals_.get(), &QSocketNotifier::activated, arrivals_.get(), [this] { readEvents(); });
    readEvents();
}

void XEmbedIcon::leave() {
    if (const auto attempt = std::exchange(attempt_, nullptr)) {
        const std::scoped_lock lock(attempt->mutex);
        attempt->icon = nullptr;
    }
    if (arrivals_) {
        arrivals_->setEnabled(false);
        arrivals_.release()->deleteLater(); // it may be what has called
    }
    dock_.reset();
    isTaken_ = false;
}

void XEmbedIcon::readEvents() {
    while (dock_) {
        if (xcb_connection_has_error(dock_->connection.get()) != 0) {
            leave();
            return;
        }
        const std::unique_ptr<xcb_generic_event_t, X11Free> event(
            xcb_poll_for_event(dock_->connection.get()));
        if (!event) {
            return;
        }
        handle(*event);
    }
}

bool XEmbedIcon::isOurPanelGone(const xcb_generic_event_t& event) const {
    const xcb_window_t gone = as<xcb_destroy_notify_event_t>(event).window;
    return dock_->panel != XCB_NONE && (gone == dock_->panel || gone == dock_->window);
}

void XEmbedIcon::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & ~sentByAClient) {
    case XCB_CLIENT_MESSAGE: {
        const auto& message = as<xcb_client_message_event_t>(event);
        if (message.type == dock_->manager && message.data.data32[1] == dock_->selection) {
            look();
        }
        break;
    }
    case XCB_DESTROY_NOTIFY:
        if (isOurPanelGone(event)) {
            look();
        }
        break;
    case XCB_REPARENT_NOTIFY: {
        const auto& moved = as<xcb_reparent_notify_event_t>(event);
        isTaken_ = moved.window == dock_->window && moved.parent != dock_->screen->root;
        break;
    }
    case XCB_CONFIGURE_NOTIFY: {
        const auto& placed = as<xcb_configure_notify_event_t>(event);
        if (placed.window == dock_->window) {
            size_ = {placed.width, placed.height};
            draw();
        }
        break;
    }
    case XCB_EXPOSE: draw(); break;
    case XCB_BUTTON_RELEASE: {
        const auto& click = as<xcb_button_release_event_t>(event);
        if (click.detail <= lastClickButton && activated_) {
            activated_(QPointF(click.root_x, click.root_y));
        }
        break;
    }
    default: break;
    }
}

/// Few of these panels tell their colours, and most are dark.
std::optional<bool> XEmbedIcon::isPanelDark() const {
    return dock_ && dock_->panel != XCB_NONE ? std::optional(dock_->isPanelDark.value_or(true))
                                             : std::nullopt;
}

void XEmbedIcon::setPictures(std::vector<QImage> pictures) {
    pictures_ = std::move(pictures);
    draw();
}

void XEmbedIcon::draw() {
    if (!isTaken_ || pictures_.empty() || size_.isEmpty()) {
        return;
    }
    const int side = std::min(size_.width(), size_.height());
    QImage whole(size_, QImage::Format_ARGB32_Premultiplied);
    // Where nothing shines through, the ground is what the picture was made for.
    const bool isTranslucent = dock_->depth == translucentDepth;
    whole.fill(isTranslucent ? Qt::transparent : (isPanelDark().value_or(true) ? Qt::black : Qt::white));
    QPainter painter(&whole);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect place((size_.width() - side) / 2, (size_.height() - side) / 2, side, side);
    painter.drawImage(place, fitting(pictures_, side));
    painter.end();
    xcb_put_image(dock_->connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, dock_->window, dock_->pen,
                  static_cast<std::uint16_t>(whole.width()), static_cast<std::uint16_t>(whole.height()), 0, 0,
                  0, dock_->depth, static_cast<std::uint32_t>(whole.sizeInBytes()), whole.constBits());
    xcb_flush(dock_->connection.get());
}

} // namespace quietlark
