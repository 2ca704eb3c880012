#include "Quietlark/Pet/SoftWumble.h"
#include "Quietlark/Pet/WumbleAnimator.h"

#include <QImage>
#include <benchmark/benchmark.h>

namespace quietlark {
namespace {

constexpr double points = 220;

wumble::WumbleDay completePet(int variety) {
    wumble::WumbleDay day{.day = "2026-03-09", .base = static_cast<wumble::WumbleBase>(variety), .rests = 6};
    day.traits.accessory = static_cast<wumble::WumbleAccessory>(variety % 15);
    day.traits.keepsake = static_cast<wumble::WumbleKeepsake>(variety % 11);
    return day;
}

/// One frame of a complete pet in motion. To reach: under 4 ms at scale 2.
void drawingAFrame(benchmark::State& state) {
    const auto side = static_cast<int>(points * static_cast<double>(state.range(0)));
    const auto day = completePet(static_cast<int>(state.range(1)));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    double t = 0;
    for (auto _ : state) {
        image.fill(Qt::transparent);
        QPainter painter(&image);
        auto pose = WumbleAnimator::pose(wumble::WumbleMood::idle, day, t, t, false, false,
                                         wumble::WumbleJelly::wumble);
        pose.sway = 3;
        pose.sag = 2;
        SoftWumble::draw(painter, QRectF(0, 0, side, side), day, pose);
        t += 1.0 / 60;
    }
}
BENCHMARK(drawingAFrame)
    ->Args({1, 0})
    ->Args({2, 0})
    ->Args({2, static_cast<int>(wumble::WumbleBase::mitarashi)})
    ->Args({2, static_cast<int>(wumble::WumbleBase::azuki)})
    ->Args({2, static_cast<int>(wumble::WumbleBase::blackSesame)})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quietlark
