#include "Quietlark/Renderers/PetCells.h"
#include "Quietlark/Renderers/PetSheets.h"
#include "Quietlark/Renderers/PreviewStage.h"
#include "Quietlark/Surfaces/BreakScreen/BreakOverlayController.h"
#include "Quietlark/Surfaces/BreakScreen/BreakView.h"

#include <array>
#include <cstdio>
#include <string>
#include <vector>

namespace quietlark {

namespace {

using wumble::Enforcement;
using wumble::Limit;
using wumble::WumbleSettings;

constexpr double breakLength = 45;
constexpr double settled = 2;       ///< seconds until all has arrived
constexpr double unlocked = 12;     ///< and until a balanced break can be skipped
constexpr double midFlight = 1.25;  ///< seconds into a reveal that grew the pet
constexpr double afterReveal = 2.6; ///< and until its paper has gone
constexpr double frameLength = 1.0 / 30;
constexpr int stripColumns = 4;
constexpr double stripCell = 480;
constexpr std::array entranceTimes{0.0, 0.1, 0.2, 0.3, 0.35, 0.4, 0.45, 0.5, 0.6, 0.7, 0.9, 1.2};
constexpr std::array revealTimes{0.1, 0.4, 0.5, 0.55, 0.6, 0.7, 0.8, 1.0, 1.3, 1.7, 2.1, 2.6};
constexpr std::array exitTimes{0.0, 0.06, 0.12, 0.2, 0.28, 0.34};

/// A pet on its day, and how it came to it.
struct Pet {
    int revealed = 4;
    int restDays = 0;
};

/// A break screen on a screen of its own.
class BreakShow {
public:
    BreakShow(const Appearance& look, const PreviewStage::Choose& choose, const Pet& pet)
        : stage_(look, choose, pet.revealed, pet.restDays), controller_(stage_.context()) {
        stage_.model.install({.overlay = &controller_});
        stage_.start();
    }
    ~BreakShow() { stage_.model.install({}); }
    BreakShow(const BreakShow&) = delete;
    BreakShow& operator=(const BreakShow&) = delete;

    AppModel& model() { return stage_.model; }
    /// Once all that moves is where it has to be now.
    QImage picture(double scale) {
        stage_.advance(0);
        return stage_.picture(scale);
    }

    /// In steps of a frame, so that everything takes its way.
    void run(double seconds) {
        const double end = stage_.loop.uptime() + seconds;
        while (stage_.loop.uptime() < end - frameLength) {
            stage_.advance(frameLength);
        }
        stage_.advance(end - stage_.loop.uptime());
    }

    void jump(double seconds) { stage_.advance(seconds); }

    void begin() { model().startBreak(wumble::BreakKind::shortBreak, breakLength); }

    /// Up to the moment when the engine ends it.
    void finish() {
        begin();
        jump(breakLength - 1);
        run(1);
    }

    /// What another screen would show.
    void showOther() {
        auto view = std::make_unique<BreakView>(BreakView::Setup{.context = stage_.context(),
                                                                 .stage = controller_.stage(),
                                                                 .screen = stage_.host.screen(),
                                                                 .isPrimary = false});
        other_ = stage_.host.host(std::move(view), {.layer = SurfaceLayer::breakScreen});
        other_->setFrame(stage_.host.screen().frame);
        other_->setMapped(true);
    }

private:
    PreviewStage stage_;
    BreakOverlayController controller_;
    std::unique_ptr<HostedSurface> other_;
};

struct Shot {
    const char* name;
    void (*choose)(WumbleSettings&);
    Pet pet;
    void (*play)(BreakShow&);
    void (*look)(Appearance&) = [](Appearance&) {};
};

void asUsual(WumbleSettings&) {}
void noSnoozes(WumbleSettings& settings) { settings.snoozesPerDay = Limit::count(0); }
void holding(WumbleSettings& settings) { settings.holdUntilEndPressed = true; }
void titled(WumbleSettings& settings, const char* title) { settings.customShortTitles = {title}; }

void rest(BreakShow& show) {
    show.begin();
    show.run(settled);
}

void restLonger(BreakShow& show) {
    rest(show);
    show.jump(unlocked);
    show.run(settled);
}

void reveal(BreakShow& show) {
    show.finish();
    show.run(midFlight);
}

constexpr const char* longTitle =
    "Stand up, walk to the window, look at the tree that you planted with your neighbours in the spring of "
    "that "
    "very long year, count its branches from the left to the right, and then come back slowly, please";

constexpr auto shots = std::to_array<Shot>({
    {"resting-first-seconds", asUsual, {}, rest},
    {"resting-balanced", asUsual, {}, restLonger},
    {"resting-casual",
     [](WumbleSettings& settings) { settings.enforcement = Enforcement::casual; },
     {},
     rest},
    {"resting-hardcore",
     [](WumbleSettings& settings) { settings.enforcement = Enforcement::hardcore; },
     {},
     rest},
    {"resting-no-snoozes", noSnoozes, {}, restLonger},
    {"resting-blur",
     [](WumbleSettings& settings) { settings.breakScreenStyle = wumble::BreakScreenStyle::blur; },
     {},
     restLonger},
    {"resting-hint",
     asUsual,
     {},
     [](BreakShow& show) {
         restLonger(show);
         show.model().setBreakHint("Press Esc once more to skip");
         show.run(0.5);
     }},
    {"finished",
     holding,
     {},
     [](BreakShow& show) {
         show.finish();
         show.run(settled);
     }},
    {"preview",
     asUsual,
     {},
     [](BreakShow& show) {
         show.model().startPreview(10);
         show.run(settled);
     }},
    {"preview-done",
     asUsual,
     {},
     [](BreakShow& show) {
         show.model().startPreview(10);
         show.jump(10);
         show.run(1.5);
     }},
    {"celebrating-paws", asUsual, {.revealed = 2, .restDays = 11}, reveal},
    {"celebrating-first", asUsual, {.revealed = 0}, reveal},
    {"celebrating-nothing-new",
     asUsual,
     {.revealed = 6},
     [](BreakShow& show) {
         show.finish();
         show.run(1);
     }},
    {"celebrating-milestone", asUsual, {.revealed = 5, .restDays = 30}, reveal},
    {"celebrating-after",
     asUsual,
     {.revealed = 1},
     [](BreakShow& show) {
         show.finish();
         show.run(afterReveal);
     }},
    {"other-resting",
     asUsual,
     {},
     [](BreakShow& show) {
         rest(show);
         show.showOther();
         show.run(0.1);
     }},
    {"other-finished",
     holding,
     {},
     [](BreakShow& show) {
         show.finish();
         show.showOther();
         show.run(settled);
     }},
    {"long-title", [](WumbleSettings& settings) { titled(settings, longTitle); }, {}, restLonger},
    {"right-to-left",
     [](WumbleSettings& settings) { titled(settings, "خذ استراحة قصيرة وانظر بعيدًا عن الشاشة"); },
     {},
     restLonger},
    {"emoji",
     [](WumbleSettings& settings) { titled(settings, "Stretch like a 🐈, breathe like a 🌊"); },
     {},
     restLonger},
    {"large-text", asUsual, {}, restLonger, [](Appearance& look) { look.textScale = 1.5; }},
    {"large-text-long-title",
     [](WumbleSettings& settings) { titled(settings, longTitle); },
     {},
     restLonger,
     [](Appearance& look) { look.textScale = 1.5; }},
    {"large-text-reveal",
     asUsual,
     {.revealed = 3, .restDays = 120},
     reveal,
     [](Appearance& look) { look.textScale = 1.5; }},
    {"more-contrast", asUsual, {}, restLonger, [](Appearance& look) { look.moreContrast = true; }},
    {"reduced", asUsual, {.revealed = 2}, reveal, [](Appearance& look) { look.reduceMotion = true; }},
});

Cell cell(double at, const QImage& picture) {
    std::array<char, 16> caption{};
    std::snprintf(caption.data(), caption.size(), "%.2f s", at);
    return {caption.data(), [picture](QPainter& painter, const QRectF& place) {
                const QSizeF size = QSizeF(picture.size()).scaled(place.size(), Qt::KeepAspectRatio);
                painter.setRenderHint(QPainter::SmoothPixmapTransform);
                painter.drawImage(QRectF(place.center() - QPointF(size.width(), size.height()) / 2, size),
                                  picture);
            }};
}

/// Pictures at these seconds from now on.
QImage strip(BreakShow& show, std::span<const double> times, const Appearance& look) {
    std::vector<Cell> cells;
    double before = 0;
    for (const double at : times) {
        show.run(at - before);
        before = at;
        cells.push_back(cell(at, show.picture(1)));
    }
    return sheet(cells, paper(look, stripColumns, stripCell));
}

bool renderStrips(const std::filesystem::path& folder, const Appearance& look) {
    BreakShow show(look, asUsual, {.revealed = 2, .restDays = 3});
    show.begin();
    bool saved = save(strip(show, entranceTimes, look), folder, "strip-entrance.png");
    show.jump(breakLength - entranceTimes.back() - 1);
    show.run(1);
    saved = save(strip(show, revealTimes, look), folder, "strip-reveal.png") && saved;
    show.model().closeBreakScreen();
    return save(strip(show, exitTimes, look), folder, "strip-exit.png") && saved;
}

} // namespace

bool renderBreakScreens(const std::filesystem::path& folder, Appearance appearance) {
    bool saved = true;
    for (const Shot& shot : shots) {
        Appearance look = appearance;
        shot.look(look);
        BreakShow show(look, shot.choose, shot.pet);
        shot.play(show);
        saved = save(show.picture(1), folder, std::string(shot.name) + ".png") && saved;
        saved = save(show.picture(2), folder, std::string(shot.name) + "@2x.png") && saved;
    }
    return renderStrips(folder, appearance) && saved;
}

} // namespace quietlark
