#pragma once

#include "Quietlark/ManualMainLoop.h"
#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Platform/ManualDesktop.h"
#include "Quietlark/Renderers/PreviewHost.h"
#include "Quietlark/Surfaces/SurfaceContext.h"

#include <QProperty>
#include <QTemporaryDir>

#include <functional>

namespace quietlark {

/// The whole program but for the desktop, on a machine and a screen of its own, with time moved by hand: pictures and
/// films of surfaces come from the same model and views as the person's, and look the same on every machine.
class PreviewStage {
public:
    using Choose = std::function<void(wumble::WumbleSettings&)>;

    /// A Monday morning with a pet that shows `revealed` of its looks, well known to its person, after `restDays` days
    /// in a row that had a break. Nothing runs yet.
    explicit PreviewStage(
        const Appearance& look, const Choose& choose = [](auto&) {}, int revealed = 6, int restDays = 0);
    ~PreviewStage();
    PreviewStage(const PreviewStage&) = delete;
    PreviewStage& operator=(const PreviewStage&) = delete;

    /// From here on the day goes by as `loop` is advanced.
    void start() { model.start(AppModel::Running::ticking); }

    /// Lets so many seconds pass, and what moves catch up with them.
    void advance(double seconds);

    QImage picture(double scale = 1) { return host.picture(appearance.value(), scale); }
    QImage pictureOf(std::string_view identifier, double scale = 2) {
        return host.pictureOf(identifier, appearance.value(), scale);
    }

    SurfaceContext context() { return {model, loop, host, *platform.windows, nullptr, appearance}; }

private:
    QTemporaryDir folder_;

public:
    ManualMainLoop loop;
    ManualDesktop desktop;
    Platform platform;
    PreviewHost host;
    QProperty<Appearance> appearance;
    AppModel model;
};

} // namespace quietlark
