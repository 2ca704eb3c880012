#pragma once

#include "Quietlark/Surfaces/SurfaceContext.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "tests/app/ModelDriver.h"
#include "tests/support/RecordingSurfaceHost.h"
#include "tests/surfaces/Buttons.h"

#include <QCoreApplication>
#include <QEnterEvent>

namespace quietlark::test {

/// A model, its person and recording screens for the surfaces to stand on.
struct NotesFixture : testing::Test {
    explicit NotesFixture(const std::function<void(wumble::WumbleSettings&)>& choose = [](auto&) {})
        : driver(choose) {}

    ModelDriver driver;
    RecordingSurfaceHost host;
    const std::unique_ptr<WindowSystem> windows = platformOf(driver.desktop).windows;
    QProperty<Appearance> appearance;
    SurfaceContext context{driver.model(), driver.loop, host, *windows, &driver.accessibility, appearance};

    /// Lets the day go on until the model shows such a surface.
    RecordedSurface& await(std::string_view identifier) {
        constexpr double look = 0.2;
        for (double waited = 0; waited < 4 * 3600 && host.top(identifier) == nullptr; waited += look) {
            driver.loop.advance(look);
        }
        if (host.top(identifier) == nullptr) {
            throw std::logic_error("it never came");
        }
        return *host.top(identifier);
    }

    /// What was spoken since it was last asked.
    Told spoken() {
        Told told = driver.told();
        std::erase_if(told, [](const std::string& line) { return !line.starts_with("spoken: "); });
        return told;
    }

    static QAbstractButton* button(RecordedSurface& surface, const std::string& name) {
        return buttonIn(surface.view(), name);
    }
    static Told buttons(RecordedSurface& surface) { return buttonsIn(surface.view()); }

    /// The pointer comes onto a view, or goes.
    static void hover(QWidget& view, bool inside) {
        if (inside) {
            QEnterEvent event({5, 5}, {5, 5}, {5, 5});
            QCoreApplication::sendEvent(&view, &event);
        } else {
            QEvent event(QEvent::Leave);
            QCoreApplication::sendEvent(&view, &event);
        }
    }
};

} // namespace quietlark::test
