#include "Quietlark/Platform/Linux/Hosting/X11Screens.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace quietlark {

namespace {

/// Scaled or not, the corner of a screen has the same numbers in points and in pixels.
QRect pixelsOf(const QScreen& screen) {
    const QRect points = screen.geometry();
    return {points.topLeft(), (QSizeF(points.size()) * screen.devicePixelRatio()).toSize()};
}

QPointF pointsOn(const QScreen& screen, const QPointF& pixels) {
    const QPointF corner = screen.geometry().topLeft();
    return corner + (pixels - corner) / screen.devicePixelRatio();
}

QString nameOf(const QScreen& screen) { return screen.model().isEmpty() ? screen.name() : screen.model(); }

QList<QScreen*> mainFirst() {
    QList<QScreen*> screens = QGuiApplication::screens();
    std::stable_partition(screens.begin(), screens.end(),
                          [](const QScreen* screen) { return screen == QGuiApplication::primaryScreen(); });
    return screens;
}

} // namespace

X11Screens::X11Screens(X11Wire& wire) : struts_(wire, [this] { soon_.start(); }), told_(screens()) {
    soon_.setSingleShot(true);
    soon_.setInterval(0);
    soon_.callOnTimeout([this] { check(); });
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &context_, [this](QScreen* screen) {
        follow(screen);
        soon_.start();
    });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &context_, [this] { soon_.start(); });
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &context_, [this] { soon_.start(); });
    for (QScreen* screen : QGuiApplication::screens()) {
        follow(screen);
    }
}

void X11Screens::follow(QScreen* screen) {
    const auto changed = [this] { soon_.start(); };
    QObject::connect(screen, &QScreen::geometryChanged, &context_, changed);
    QObject::connect(screen, &QScreen::availableGeometryChanged, &context_, changed);
    QObject::connect(screen, &QScreen::logicalDotsPerInchChanged, &context_, changed);
    QObject::connect(screen, &QScreen::physicalDotsPerInchChanged, &context_, changed);
    QObject::connect(screen, &QScreen::refreshRateChanged, &context_, changed);
}

void X11Screens::check() {
    auto now = screens();
    if (now != told_) {
        told_ = std::move(now);
        observers_.tell();
    }
}

std::vector<QRect> X11Screens::monitors() const {
    std::vector<QRect> monitors;
    for (const QScreen* screen : QGuiApplication::screens()) {
        monitors.push_back(pixelsOf(*screen));
    }
    return monitors;
}

/// Some desktops keep the place of their panel free without a window that says so; then there is only the one
/// rectangle for all monitors.
QRect X11Screens::visiblePixels(const QScreen& screen) const {
    QRect root;
    for (const QRect& monitor : monitors()) {
        root = root.united(monitor);
    }
    const QRect whole = pixelsOf(screen);
    const auto struts = struts_.struts();
    const QSize rootSize(root.right() + 1, root.bottom() + 1);
    const QRect free = withoutStruts(whole, rootSize, struts);
    const QRect inWorkArea = free.intersected(struts_.workArea().value_or(free));
    const bool isOnlySource = struts.empty() || QGuiApplication::screens().size() == 1;
    return isOnlySource && !inWorkArea.isEmpty() ? inWorkArea : free;
}

std::vector<Screen> X11Screens::screens() const {
    std::vector<Screen> screens;
    for (const QScreen* screen : mainFirst()) {
        const QRectF visible = visiblePixels(*screen);
        screens.push_back(
            {.name = nameOf(*screen).toStdString(),
             .frame = screen->geometry(),
             .visibleFrame = {pointsOn(*screen, visible.topLeft()), pointsOn(*screen, visible.bottomRight())},
             .scale = screen->devicePixelRatio(),
             .refreshRate = screen->refreshRate()});
    }
    return screens;
}

std::optional<QPointF> X11Screens::points(const QPoint& pixels) const {
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (pixelsOf(*screen).contains(pixels)) {
            return pointsOn(*screen, pixels);
        }
    }
    return {};
}

} // namespace quietlark
