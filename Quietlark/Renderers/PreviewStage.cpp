#include "Quietlark/Renderers/PreviewStage.h"

#include "Quietlark/Pet/WumbleView.h"
#include "Quietlark/Renderers/PetCells.h"
#include "Quietlark/Surfaces/FrameTicker.h"
#include "WumbleCore/Life/DayKey.h"

#include <QCoreApplication>

namespace quietlark {

namespace {

constexpr QSizeF screenSize{1280, 800};
constexpr wumble::Date monday{1773046800}; ///< 9 March 2026, 9:00 in UTC

/// What a program that was closed over the weekend would have left.
std::filesystem::path furnish(const QTemporaryDir& folder, const PreviewStage::Choose& choose, int revealed,
                              int restDays) {
    std::filesystem::path path = folder.path().toStdString();
    wumble::Storage storage(path);
    wumble::WumbleSettings settings;
    choose(settings);
    storage.save(settings);
    wumble::WumbleLife life;
    life.welcomed = true;
    const wumble::Calendar calendar;
    const std::string today = wumble::DayKey::string(calendar.day(monday));
    auto pet = samplePet(wumble::WumbleBase::sakura, revealed, 2);
    pet.day = today;
    life.days[today] = pet;
    life.greetedDay = today;
    for (int before = 1; before <= restDays; ++before) {
        auto earlier = samplePet(wumble::WumbleBase::matcha, 3, before);
        earlier.day = wumble::DayKey::string(calendar.day(monday) - std::chrono::days(before));
        life.days[earlier.day] = earlier;
    }
    storage.save(life);
    return path;
}

} // namespace

PreviewStage::PreviewStage(const Appearance& look, const Choose& choose, int revealed, int restDays)
    : loop(monday), platform(platformOf(desktop)), host(screenSize), appearance(look),
      model(furnish(folder_, choose, revealed, restDays), {.mainLoop = loop,
                                                           .platform = platform,
                                                           .calendar = wumble::Calendar(),
                                                           .random = [](std::uint64_t) { return 0; }}) {
    WumbleView::usualTime = [this] { return loop.uptime(); };
}

PreviewStage::~PreviewStage() { WumbleView::usualTime = nullptr; }

void PreviewStage::advance(double seconds) {
    loop.advance(seconds);
    FrameTicker::frameOfAll();
    // Layouts, but no painting: that is done once, for a picture.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

} // namespace quietlark
