#include "Quietlark/Renderers/PreviewStage.h"
#include "Quietlark/Surfaces/BreakScreen/BreakOverlayController.h"
#include "Quietlark/Surfaces/BreakScreen/BreakView.h"

#include <QApplication>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <functional>

namespace quietlark {
namespace {

constexpr double frameLength = 1.0 / 60;
constexpr double entranceLength = 1.3;
constexpr double groundLength = 0.6;

void needApplication() {
    static int count = 1;
    static char name[] = "benchmarks";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Never ended: what Qt keeps for it outlives the program's own objects.
    static auto* application = new QApplication(count, arguments);
    benchmark::DoNotOptimize(application);
}

/// Of this thread alone: other programs on the machine don't count.
double milliseconds(const std::function<void()>& work) {
    const auto spent = [] {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    };
    const double before = spent();
    work();
    return spent() - before;
}

/// What is drawn anew in a frame: everything while the ground comes, then what lies in the middle and the clock.
QRegion movingPart(const QSize& size, double t) {
    const QRect whole(QPoint(), size);
    if (t <= groundLength) {
        return whole;
    }
    QRect middle(QPoint(), QSize(900, 660));
    middle.moveCenter(whole.center());
    return QRegion(middle & whole) + QRect(whole.center().x() - 200, 20, 400, 60);
}

/// The frames of one entrance as a backing store without help from a graphics card draws them. To reach: none of 16 ms
/// but the first. Sizes are pixels.
void entrance(benchmark::State& state) {
    needApplication();
    const QSize pixels(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    const auto scale = static_cast<double>(state.range(2));
    const auto style = static_cast<wumble::BreakScreenStyle>(state.range(3));
    PreviewStage stage({.dark = true}, [style](auto& settings) {
        settings.nudgesBetween = 0;
        settings.breakScreenStyle = style;
    });
    BreakOverlayController controller(stage.context());
    stage.model.install({.overlay = &controller});
    stage.start();
    QImage screen(pixels, QImage::Format_ARGB32_Premultiplied);
    screen.setDevicePixelRatio(scale);
    double worstFading = 0;
    double worstAfter = 0;
    double first = 0;
    double all = 0;
    double entrances = 0;
    for (auto _ : state) {
        stage.model.startBreak(wumble::BreakKind::shortBreak, 600);
        BreakView view(
            {.context = stage.context(), .stage = controller.stage(), .screen = stage.host.screen()});
        view.resize(pixels / scale);
        const auto draw = [&](double t) {
            const QRegion part = movingPart(view.size(), t);
            if (t <= groundLength) {
                screen.fill(Qt::transparent);
            }
            view.frame();
            view.render(&screen, part.boundingRect().topLeft(), part, QWidget::DrawChildren);
        };
        first = std::max(first, milliseconds([&] { draw(0); }));
        for (double t = frameLength; t < entranceLength; t += frameLength) {
            stage.loop.advance(frameLength);
            const double spent = milliseconds([&] { draw(t); });
            double& worst = t <= groundLength ? worstFading : worstAfter;
            worst = std::max(worst, spent);
            all += spent;
        }
        ++entrances;
        stage.model.skip(wumble::BreakEngine::SkipRule::forced);
        stage.loop.advance(1);
    }
    state.counters["first_ms"] = first;
    state.counters["fading_ms"] = worstFading;
    state.counters["after_ms"] = worstAfter;
    state.counters["mean_ms"] = all / entrances / (entranceLength / frameLength);
    stage.model.install({});
}
BENCHMARK(entrance)
    ->ArgNames({"width", "height", "scale", "plain"})
    ->Args({1920, 1080, 1, 1})
    ->Args({1920, 1080, 2, 1})
    ->Args({3840, 2160, 1, 1})
    ->Args({3840, 2160, 2, 1})
    ->Args({1920, 1080, 1, 0})
    ->Args({3840, 2160, 2, 0})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quietlark
