#include "tests/desktop/hosting/HostingDesktop.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QScreen>

namespace quietlark::test {

const lab::XServer* HostingDesktop::server = nullptr;

void PlainView::paintEvent(QPaintEvent*) {
    ++paints;
    QPainter(this).fillRect(rect(), colour_);
}

void PlainView::mousePressEvent(QMouseEvent*) { ++presses; }

void PlainView::keyPressEvent(QKeyEvent* event) {
    typed += event->text();
    keys.push_back(event->key());
}

void HostingDesktop::SetUp() {
    for (const char* program : {"Xvfb", "openbox", "picom", "xdotool", "xprop", "xrandr"}) {
        LAB_NEEDS(program);
    }
    host = makeSurfaceHost();
    server->run({"xrandr", "--setmonitor", "*L", "800/200x900/225+0+0", "screen"});
    addRightScreen();
    server->run({"xdotool", "mousemove", "1590", "890"});
}

void HostingDesktop::TearDown() {
    compositor.reset();
    manager.reset();
}

void HostingDesktop::addRightScreen() {
    server->run({"xrandr", "--setmonitor", "R", "800/200x900/225+800+0", "none"});
    ASSERT_TRUE(lab::spinUntil([] { return QGuiApplication::screens().size() == 2; }));
}

void HostingDesktop::removeRightScreen() { server->run({"xrandr", "--delmonitor", "R"}); }

void HostingDesktop::startWindowManager() {
    manager = std::make_unique<lab::LabProcess>(
        std::vector<std::string>{"openbox", "--startup", "echo started"}, server->environment());
    manager->readLine();
    // A window that comes while it is still starting would wait for seconds to be let in.
    ASSERT_TRUE(lab::spinUntil([] {
        const std::string named = server->run({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"});
        const std::string window = named.substr(named.rfind(' ') + 1);
        return server->run({"xprop", "-id", window, "_NET_WM_NAME"}).find("Openbox") != std::string::npos;
    }));
}

void HostingDesktop::startCompositor() {
    compositor = std::make_unique<lab::LabProcess>(
        std::vector<std::string>{"picom", "--backend", "xrender", "--config", "/dev/null"},
        server->environment());
    ASSERT_TRUE(lab::spinUntil([this] { return host->blends(); }));
}

std::unique_ptr<HostedSurface> HostingDesktop::show(const QRect& frame, const SurfaceStyle& style) const {
    auto surface = host->host(std::make_unique<PlainView>(Qt::red), style);
    surface->setFrame(frame);
    surface->setMapped(true);
    EXPECT_TRUE(lab::spinUntil([&] { return viewOf(*surface).paints > 0; })) << style.identifier;
    return surface;
}

QColor HostingDesktop::colourAt(const QPoint& place) {
    QScreen* screen = QGuiApplication::screenAt(place);
    const QPoint onScreen = place - screen->geometry().topLeft();
    return screen->grabWindow(0, onScreen.x(), onScreen.y(), 1, 1).toImage().pixelColor(0, 0);
}

bool HostingDesktop::shows(const QPoint& place, const QColor& colour) {
    return lab::spinUntil([&] { return colourAt(place) == colour; }, 5);
}

void HostingDesktop::clickAt(const QPoint& place) {
    server->run({"xdotool", "mousemove", std::to_string(place.x()), std::to_string(place.y()), "click", "1"});
}

void HostingDesktop::press(const std::string& keys) { server->run({"xdotool", "key", keys}); }

} // namespace quietlark::test
