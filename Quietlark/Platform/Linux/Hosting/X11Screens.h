#pragma once

#include "Quietlark/Platform/Linux/Hosting/Observers.h"
#include "Quietlark/Platform/Linux/Hosting/X11Struts.h"
#include "Quietlark/Platform/SurfaceHost.h"

#include <QObject>
#include <QTimer>

#include <optional>
#include <vector>

class QScreen;

namespace quietlark {

/// The screens as Qt has them, each with what the panels leave free of it.
class X11Screens {
public:
    /// `wire` outlives this.
    explicit X11Screens(X11Wire& wire);

    /// The main one first.
    std::vector<Screen> screens() const;
    [[nodiscard]] SurfaceHost::Subscription observe(std::function<void()> changed) {
        return observers_.add(std::move(changed));
    }

    /// In pixels of the root window.
    std::vector<QRect> monitors() const;

    /// A place of the root window, in points. Absent outside all screens.
    std::optional<QPointF> points(const QPoint& pixels) const;

private:
    void follow(QScreen* screen);
    void check();
    QRect visiblePixels(const QScreen& screen) const;

    X11Struts struts_;
    std::vector<Screen> told_;
    Observers observers_;
    QTimer soon_; ///< several changes come together
    QObject context_;
};

} // namespace quietlark
