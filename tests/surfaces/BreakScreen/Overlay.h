#pragma once

#include "Quietlark/Surfaces/BreakScreen/BreakOverlayController.h"

#include "Quietlark/Surfaces/BreakScreen/BreakView.h"
#include "WumbleCore/Storage/Files.h"
#include "tests/app/ModelDriver.h"
#include "tests/support/RecordingSurfaceHost.h"
#include "tests/surfaces/Buttons.h"

#include <QCoreApplication>

#include <algorithm>

namespace quietlark::test {

using wumble::BreakKind;
using wumble::Enforcement;
using wumble::EscapeAction;
using wumble::Limit;
using wumble::WumbleSettings;
using Choose = std::function<void(WumbleSettings&)>;

constexpr double breakLength = 60;

/// A machine with two screens and a break screen for them.
struct Overlay {
    explicit Overlay(const Choose& choose = [](auto&) {}) : driver(choose) {
        host.setScreens({RecordingSurfaceHost::laptop(), RecordingSurfaceHost::desk()});
        driver.model().install({.overlay = &controller});
        driver.told();
    }
    ~Overlay() { driver.model().install({}); }

    void begin(double length = breakLength, BreakKind kind = BreakKind::shortBreak) {
        driver.model().startBreak(kind, length);
    }
    /// Begins a break and lets it stand for so long.
    void rest(double seconds, double length = breakLength) {
        begin(length);
        driver.loop.advance(seconds);
    }
    /// To the reveal of a break.
    void finish() { rest(breakLength + 1.1); }

    bool press(Qt::Key key, bool autoRepeat = false) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, autoRepeat);
        event.setAccepted(false);
        QCoreApplication::sendEvent(&view(), &event);
        return event.isAccepted();
    }

    BreakView& view(std::string_view identifier = "break-screen") {
        return dynamic_cast<BreakView&>(host.top(identifier)->view());
    }
    BreakView& other() { return view("break-screen-other"); }
    const AppState& state() { return driver.state(); }
    std::string hint() { return state().breakHint.value().value_or(""); }
    bool isOnBreak() { return driver.model().engine().activeBreak().has_value(); }
    std::size_t windows() { return host.surfaces().size(); }
    std::string log() { return wumble::readWholeFile(driver.folder.path() / "overlay.log").value_or(""); }
    std::vector<std::string> controls(BreakView& of) {
        std::vector<std::string> titles;
        for (const BreakControl control : of.content().controls) {
            titles.emplace_back(title(control));
        }
        return titles;
    }
    void click(const char* name) { test::press(view(), name); }

    ModelDriver driver;
    RecordingSurfaceHost host;
    Platform platform = platformOf(driver.desktop);
    QProperty<Appearance> appearance;
    SurfaceContext context{driver.model(),    driver.loop,           host,
                           *platform.windows, &driver.accessibility, appearance};
    BreakOverlayController controller{context, platform.screenLock.get()};
};

using Titles = std::vector<std::string>;

} // namespace quietlark::test
