#include "Quietlark/Renderers/PetCells.h"
#include "Quietlark/Renderers/PetSheets.h"

#include "Quietlark/ManualMainLoop.h"
#include "Quietlark/Model/ModelWords.h"
#include "Quietlark/Surfaces/Notes/CountdownView.h"
#include "Quietlark/Surfaces/Notes/HeadsUpView.h"
#include "Quietlark/Surfaces/Notes/NoteStage.h"
#include "Quietlark/Surfaces/Notes/ToastView.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Sticker.h"

#include <QPainter>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quietlark {

namespace {

using HeadsUpWords::Choices;
using wumble::Toast;

constexpr wumble::Date morning{1'770'000'000};
constexpr double settled = 2; ///< seconds after which a note and its pet stand as they are
constexpr double margin = NoteStage::margin;

const std::string longName =
    "Quarterly Planning Board – Extended Edition for Large Teams with Very Many Members and an Unreasonably "
    "Long Window Title That Somebody Never Shortened Although It Was Asked for More Than Once 🙂";

/// One note on a stage of its own.
struct Show {
    explicit Show(const Appearance& look, wumble::NoteEntrance entrance = wumble::NoteEntrance::slap)
        : appearance(look), presence(std::make_shared<ObservedPresence>(
                                wumble::NotePresence{.arrived = morning, .entrance = entrance})) {
        state.now = morning;
        state.secondsUntilBreak = 45;
    }

    void setStage(std::unique_ptr<QWidget> content, const QSizeF& size, NoteSetting setting) {
        setting.card = {QPointF(margin, margin), size};
        setting.anchor =
            presence->value().entrance == wumble::NoteEntrance::eye ? QPointF(0.5, 0.5) : NoteStage::roomiest;
        stage = std::make_unique<NoteStage>(std::move(content), presence, std::move(setting), loop);
        stage->resize((size + QSizeF(2 * margin, 2 * margin)).toSize());
        setAppearance(*stage, appearance);
        stage->setAttribute(Qt::WA_DontShowOnScreen);
        stage->show();
    }

    QImage picture(double scale) const {
        FrameTicker::frameOfAll();
        QImage image((QSizeF(stage->size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::transparent);
        stage->render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    }

    Appearance appearance;
    ManualMainLoop loop{morning};
    AppState state;
    std::shared_ptr<ObservedPresence> presence;
    std::shared_ptr<QProperty<HeadsUpAnswer>> answer = std::make_shared<QProperty<HeadsUpAnswer>>();
    std::shared_ptr<QProperty<WumbleHello>> hello = std::make_shared<QProperty<WumbleHello>>();
    std::unique_ptr<NoteStage> stage;
};

struct Example {
    std::string name;
    std::function<void(AppState&)> arrange;
    Choices choices;
    std::optional<Toast> answer = std::nullopt;
};

void holdForTyping(AppState& state) { state.hold = wumble::HoldReason(wumble::hold::Typing{}); }

void ignore(AppState& state, const std::string& app) {
    state.ignoringSmartPause = true;
    state.rawSmartActivity = wumble::activity::FocusApp{.app = app};
}

const Choices everything{.canSnooze = true, .canSkip = true};
const Choices snoozesOnly{.canSnooze = true};

std::vector<Example> cards() {
    const Choices waits{.upcoming = wumble::BreakKind::longBreak, .canWaitForPause = true, .canSnooze = true};
    return {
        {"plain", [](AppState&) {}, everything},
        {"snoozes", [](AppState& state) { state.snoozesRemaining = 2; }, snoozesOnly},
        {"strict", [](AppState& state) { state.snoozesRemaining = 0; }, {}},
        {"long", [](AppState& state) { state.upcomingKind = wumble::BreakKind::longBreak; }, waits},
        {"typing", holdForTyping, snoozesOnly},
        {"after-call",
         [](AppState& state) {
             state.breatherAfter = wumble::activity::Meeting{};
             state.secondsUntilBreak = 59 * 60 + 59;
             state.upcomingKind = wumble::BreakKind::custom;
         },
         everything},
        {"focus", [](AppState& state) { ignore(state, "Blender"); }, everything},
        {"long-name", [](AppState& state) { ignore(state, longName); }, snoozesOnly},
        {"right-to-left", [](AppState& state) { ignore(state, "محرر النصوص"); }, everything},
        {"answer", [](AppState&) {}, everything, Toast::snoozed(300)},
        {"answer-waits", [](AppState&) {}, everything, Toast::afterThis()},
    };
}

std::vector<Example> pills() {
    const auto left = [](double seconds) {
        return [seconds](AppState& state) { state.secondsUntilBreak = seconds; };
    };
    const auto waits = [](auto change) {
        return [change](AppState& state) {
            holdForTyping(state);
            state.secondsUntilBreak = 0;
            state.typingNow = true;
            change(state);
        };
    };
    return {
        {"ten", left(10), {}},
        {"three", left(3), {}},
        {"custom",
         [](AppState& state) {
             state.secondsUntilBreak = 120;
             state.upcomingKind = wumble::BreakKind::custom;
         },
         {}},
        {"typing", waits([](AppState&) {}), {}},
        {"dragging", waits([](AppState& state) { state.dragging = true; }), {}},
        {"dictating",
         waits([](AppState& state) { state.detectorStatus = DetectorStatus{.dictating = true}; }),
         {}},
    };
}

std::vector<Toast> toasts() {
    return {
        Toast::snoozed(300),
        Toast::smartPause(wumble::activity::Meeting{.app = "Zoom"}),
        Toast::smartPause(wumble::activity::FocusApp{.app = longName}),
        Toast::smartPause(wumble::activity::FocusApp{.app = "محرر النصوص"}),
        Toast::recap(wumble::Recap::Period::month, morning, 24, 311),
        Toast::welcomeBack(900, true, std::nullopt),
        Toast::welcomeBack(900, false, "A first expression. So many questions."),
        Toast::freshStart(1200),
        ModelWords::toast(ModelWords::welcomedAsleep),
        ModelWords::toast(ModelWords::alreadyRunning),
        Toast{.title = "One line alone"},
        Toast{.title = longName, .subtitle = longName, .closable = true},
    };
}

void placePet(AppState& state, int variety) {
    constexpr auto bases = wumble::allCases<wumble::WumbleBase>();
    const auto place = static_cast<std::size_t>(variety * 7) % bases.size();
    state.today = samplePet(bases[place], 6 - variety % 3, variety);
}

std::unique_ptr<Show> cardShow(const Example& example, int variety, const Appearance& appearance) {
    auto show = std::make_unique<Show>(appearance);
    placePet(show->state, variety);
    example.arrange(show->state);
    auto view = std::make_unique<HeadsUpView>(
        show->state, [choices = example.choices] { return choices; }, show->loop,
        HeadsUpView::Followed{show->presence, show->answer, show->hello});
    auto* card = view.get();
    show->setStage(std::move(view), HeadsUpView::cardSize,
                   {.sizePet = [card](double scale) { card->sizePet(scale); }});
    if (example.answer) {
        show->answer->setValue({.toast = example.answer, .since = morning});
    }
    return show;
}

std::unique_ptr<Show> pillShow(const Example& example, int variety, const Appearance& appearance) {
    auto show = std::make_unique<Show>(appearance);
    placePet(show->state, variety);
    example.arrange(show->state);
    auto view = std::make_unique<CountdownView>(show->state, show->loop, appearance, show->presence);
    auto* pill = view.get();
    show->setStage(
        std::move(view), {pill->pillWidth(), CountdownView::height},
        {.radius = CountdownView::height / 2, .sizePet = [pill](double scale) { pill->sizePet(scale); }});
    return show;
}

std::unique_ptr<Show> toastShow(const Toast& toast, int variety, const Appearance& appearance,
                                wumble::NoteEntrance entrance = wumble::NoteEntrance::slap) {
    auto show = std::make_unique<Show>(appearance, entrance);
    placePet(show->state, variety);
    auto view = std::make_unique<ToastView>(toast, show->state.today.value(), show->loop, appearance);
    auto* note = view.get();
    show->setStage(std::move(view), note->noteSize(),
                   {.sizePet = [note](double scale) { note->sizePet(scale); }});
    return show;
}

/// Pictures on paper, in columns.
QImage laidOut(const std::vector<QImage>& pictures, int columns, const Appearance& appearance) {
    const double scale = pictures.front().devicePixelRatio();
    QSizeF cell;
    for (const QImage& picture : pictures) {
        cell = cell.expandedTo(picture.deviceIndependentSize());
    }
    const int rows = (static_cast<int>(pictures.size()) + columns - 1) / columns;
    QImage image((QSizeF(cell.width() * columns, cell.height() * rows) * scale).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    drawStickerBackground(painter, QRectF({}, image.deviceIndependentSize()), appearance);
    for (int place = 0; place < static_cast<int>(pictures.size()); ++place) {
        const int column = place % columns;
        const int row = place / columns;
        painter.drawImage(QPointF(column * cell.width(), row * cell.height()),
                          pictures[static_cast<std::size_t>(place)]);
    }
    return image;
}

template <class Examples, class Make>
QImage sheetOf(const Examples& examples, Make make, int columns, double scale, const Appearance& appearance) {
    std::vector<QImage> pictures;
    for (const auto& example : examples) {
        const auto show = make(example, static_cast<int>(pictures.size()), appearance);
        show->loop.advance(settled);
        pictures.push_back(show->picture(scale));
    }
    return laidOut(pictures, columns, appearance);
}

/// Its first moments from left to right, and below them its last ones.
QImage motionStrip(wumble::NoteEntrance entrance, double scale, const Appearance& appearance) {
    constexpr std::array arrival{0.0, 0.03, 0.07, 0.12, 0.18, 0.3};
    constexpr std::array exit{0.03, 0.08, 0.14, 0.2, 0.26, 0.36};
    std::vector<QImage> pictures;
    const auto show = toastShow(toasts()[1], 3, appearance, entrance);
    const auto at = [&](double moment) {
        show->loop.advance(moment - show->loop.uptime());
        pictures.push_back(show->picture(scale));
    };
    for (const double moment : arrival) {
        at(moment);
    }
    show->loop.advance(settled);
    auto presence = show->presence->value();
    presence.leave(show->loop.now());
    show->presence->setValue(presence);
    const double left = show->loop.uptime();
    for (const double moment : exit) {
        at(left + moment);
    }
    return laidOut(pictures, static_cast<int>(arrival.size()), appearance);
}

/// The card on its way into the answer.
QImage answerStrip(double scale, const Appearance& appearance) {
    std::vector<QImage> pictures;
    const auto show = cardShow(cards()[1], 2, appearance);
    show->loop.advance(settled);
    const auto pressed = show->loop.now();
    show->answer->setValue({.toast = Toast::snoozed(60), .since = pressed});
    for (const double moment : {0.0, 0.05, 0.1, 0.15, 0.2, 0.34}) {
        show->loop.advance(pressed + moment - show->loop.now());
        pictures.push_back(show->picture(scale));
    }
    return laidOut(pictures, 3, appearance);
}

bool renderNotes(const std::filesystem::path& folder, double scale, const std::string& suffix,
                 const Appearance& appearance) {
    return save(sheetOf(cards(), cardShow, 3, scale, appearance), folder, "cards" + suffix) &&
           save(sheetOf(pills(), pillShow, 3, scale, appearance), folder, "pills" + suffix) &&
           save(sheetOf(
                    toasts(), [](const auto&... all) { return toastShow(all...); }, 3, scale, appearance),
                folder, "toasts" + suffix);
}

} // namespace

bool renderNotePictures(const std::filesystem::path& folder, Appearance appearance) {
    bool saved = true;
    for (const int scale : {1, 2}) {
        saved = renderNotes(folder, scale, "-" + std::to_string(scale) + ".png", appearance) && saved;
    }
    Appearance large = appearance;
    large.textScale = 1.5;
    saved = renderNotes(folder, 1, "-large-text.png", large) && saved;
    Appearance firm = appearance;
    firm.moreContrast = true;
    saved = renderNotes(folder, 1, "-more-contrast.png", firm) && saved;
    for (const auto entrance : {wumble::NoteEntrance::slap, wumble::NoteEntrance::eye}) {
        const auto name = "motion-" + std::string(enumText(entrance)) + ".png";
        saved = save(motionStrip(entrance, 1, appearance), folder, name) && saved;
    }
    return save(answerStrip(1, appearance), folder, "answer.png") && saved;
}

} // namespace quietlark
