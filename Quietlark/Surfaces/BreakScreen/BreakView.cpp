#include "Quietlark/Surfaces/BreakScreen/BreakView.h"

#include "Quietlark/Surfaces/BreakScreen/BreakKeys.h"
#include "Quietlark/Theme/AppearanceScope.h"

#include <algorithm>
#include <cmath>

namespace quietlark {

namespace {

constexpr double ringPeriod = 0.25;
constexpr double ringTolerance = 0.02;
constexpr double minute = 60;
constexpr int dotsOfADay = 6;
constexpr double tagTilt = -3; ///< degrees
constexpr double chipTilt = 2;

QSizeF sizeOf(const Landing& thing) { return thing.thingSize(); }

void placeLanding(Landing& thing, const QRectF& place) {
    QRect around(QPoint(), thing.sizeHint());
    around.moveCenter(place.center().toPoint());
    thing.setGeometry(around);
}

/// The same but for what the clock changes.
bool differOnlyInTime(BreakContent a, const BreakContent& b) {
    const bool sameThings =
        a.ring.has_value() == b.ring.has_value() && a.timeLeft.size() == b.timeLeft.size();
    a.ring = b.ring;
    a.timeLeft = b.timeLeft;
    return sameThings && a == b;
}

} // namespace

BreakView::BreakView(Setup setup)
    : setup_(std::move(setup)), ground_(backdrop()),
      pet_(new BreakPet(setup_.context.model.state().today.value(),
                        {.now = [&loop = setup_.context.loop] { return loop.uptime(); },
                         .start = setup_.stage->petClockStart},
                        this)),
      ring_(new CountdownRing(setup_.context.loop, setup_.screen.refreshRate, this)),
      dots_(new RevealDots(this)), tag_(new StickerTag(this)),
      chip_(new StreakChip(StreakChip::Size::large, this)),
      lockButton_(new StickerButton(QStringLiteral("Lock screen"), StickerButton::Kind::quiet, this)),
      controls_(*this, [this](BreakControl control) { press(control); }),
      frames_(setup_.context.loop, [this](double) { frame(); }) {
    lockButton_->setSymbol(Symbol::lock);
    connect(lockButton_, &QAbstractButton::clicked, this, [this] {
        if (setup_.lock != nullptr) {
            setup_.lock->lockNow();
        }
    });
    for (QWidget* thing :
         {static_cast<QWidget*>(ring_), static_cast<QWidget*>(dots_), static_cast<QWidget*>(tag_),
          static_cast<QWidget*>(chip_), static_cast<QWidget*>(lockButton_)}) {
        thing->hide();
    }
    tag_->setTilt(tagTilt);
    chip_->setTilt(chipTilt);
    arrangeKeys();
    followModel();
    refreshAppearance();
    refresh();
}

/// Nothing has the keyboard at first, so that Space presses nothing: Tab goes to the buttons, then to the pet.
void BreakView::arrangeKeys() {
    setFocusPolicy(Qt::StrongFocus);
    QWidget* before = this;
    std::vector<QWidget*> order(controls_.buttons().begin(), controls_.buttons().end());
    order.push_back(lockButton_);
    order.push_back(pet_);
    for (QWidget* next : order) {
        setTabOrder(before, next);
        before = next;
    }
    for (QWidget* inside : findChildren<QWidget*>()) {
        inside->installEventFilter(this);
    }
    setFocus();
}

void BreakView::followModel() {
    const AppState& state = setup_.context.model.state();
    const auto renew = [this] { refresh(); };
    followed_.push_back(observe(state.breakScreen, renew));
    followed_.push_back(observe(state.breakTitle, renew));
    followed_.push_back(observe(state.breakSubtitle, renew));
    followed_.push_back(observe(state.breakHint, renew));
    followed_.push_back(observe(state.canSnooze, renew));
    followed_.push_back(observe(state.phase, renew));
    followed_.push_back(observe(state.settings, [this] {
        refreshAppearance();
        refresh();
    }));
    followed_.push_back(observe(state.today, renew));
    followed_.push_back(observe(setup_.stage->reveal, renew));
    followed_.push_back(observe(setup_.stage->leftAt, renew));
    followed_.push_back(observe(setup_.context.appearance, [this] { refreshAppearance(); }));
}

/// Always dark, whatever the rest of the program is.
BreakGround::Look BreakView::look() const {
    Appearance appearance = setup_.context.appearance.value();
    appearance.dark = true;
    return {.style = setup_.context.model.state().settings.value().breakScreenStyle,
            .appearance = appearance,
            .blends = setup_.context.host.blends()};
}

/// To fetch it takes longer than all the rest.
std::optional<QImage> BreakView::backdrop() const {
    return BreakGround::wantsBackdrop(look()) ? setup_.context.host.backdrop(setup_.screen) : std::nullopt;
}

void BreakView::refreshAppearance() {
    appearance_ = look().appearance;
    setAppearance(*this, appearance_);
    pet_->setAppearance(appearance_);
    ground_.setLook(look());
    if (content_.scene != BreakScene::empty) {
        layOut(true);
    }
}

void BreakView::refresh() {
    const wumble::Date now = setup_.context.loop.now();
    if (const auto& reveal = setup_.stage->reveal.value()) {
        beats_ = reveal->beats(now);
    }
    if (setup_.stage->leftAt.value()) {
        quarterSeconds_.reset();
        controls_.setAwake(false);
        lockButton_->setAttribute(Qt::WA_TransparentForMouseEvents);
        return frames_.start(setup_.screen.refreshRate);
    }
    if (content_.scene != BreakScene::empty && isBetweenScenes(setup_.context.model, *setup_.stage)) {
        return;
    }
    BreakContent next = breakContent(setup_.context.model, *setup_.stage, setup_.isPrimary, now);
    if (differOnlyInTime(next, content_)) {
        showTimes(next);
    } else if (next != content_) {
        showNext(std::move(next));
    }
    if (now < restsFrom()) {
        frames_.start(setup_.screen.refreshRate);
    }
}

void BreakView::showTimes(const BreakContent& next) {
    if (next.ring) {
        ring_->setValue(*next.ring);
    }
    if (next.timeLeft != content_.timeLeft && !layout_.words.empty()) {
        layout_.words.back().text = QString::fromStdString(next.timeLeft);
        update(layout_.words.back().place.toAlignedRect());
    }
    content_ = next;
}

/// What is about to be taken off, so that it can leave.
void BreakView::rememberFormer(const BreakContent& next) {
    const wumble::Date now = setup_.context.loop.now();
    if (next.scene != content_.scene) {
        formerWords_ = layout_.words;
        sceneAt_ = now;
    }
    if (next.footer != content_.footer || next.footerIsHint != content_.footerIsHint) {
        formerFooter_ = FooterLine{layout_.footer, content_.footerIsHint};
        footerAt_ = now;
    }
}

void BreakView::showNext(BreakContent next) {
    const bool isFirst = content_.scene == BreakScene::empty;
    const bool isSameScene = isFirst || next.scene == content_.scene;
    if (!isFirst) {
        rememberFormer(next);
    }
    if (controls_.loseFocus(next.controls) || (lockButton_->hasFocus() && !next.showsLock)) {
        setFocus();
    }
    content_ = std::move(next);
    pet_->setDay(content_.pet);
    pet_->setMood(content_.mood);
    pet_->setFamilyName(QString::fromStdString(setup_.context.model.state().life.value().name));
    layOut(isSameScene && !isFirst);
    follow(content_.scene);
    say();
}

/// The timers of what changes by itself.
void BreakView::follow(BreakScene scene) {
    MainLoop& loop = setup_.context.loop;
    const bool runs = scene == BreakScene::running || scene == BreakScene::previewing;
    if (!runs) {
        quarterSeconds_.reset();
    } else if (!quarterSeconds_) {
        quarterSeconds_ = loop.repeating(ringPeriod, ringTolerance, [this] { refresh(); });
    }
    if (!minutes_) {
        minutes_ = loop.repeating(minute, ringTolerance, [this] { refresh(); });
        const double now = loop.now().secondsSinceEpoch;
        minutes_->setNextFireDate({(std::floor(now / minute) + 1) * minute});
    }
}

/// What isn't drawn as a control of its own, for those who listen.
void BreakView::say() {
    QStringList lines;
    for (const std::string& line : {content_.subtitle, content_.footer}) {
        if (!line.empty()) {
            lines.append(QString::fromStdString(line));
        }
    }
    setAccessibleName(QString::fromStdString(content_.title));
    setAccessibleDescription(lines.join(QLatin1Char('\n')));
}

void BreakView::press(BreakControl control) {
    AppModel& model = setup_.context.model;
    if (!isAwake(setup_.context.loop.now())) {
        return;
    }
    switch (control) {
    case BreakControl::endBreak:
    case BreakControl::endPreview: return model.endBreak();
    case BreakControl::snoozeShort: return model.snooze(shortSnooze, Asked::breakScreen);
    case BreakControl::snoozeLong: return model.snooze(longSnooze, Asked::breakScreen);
    case BreakControl::skip:
    case BreakControl::skipThisBreak: return model.skip(wumble::BreakEngine::SkipRule::asAllowed);
    case BreakControl::backToWork: return model.closeBreakScreen();
    }
}

void BreakView::layOut(bool isSameScene) {
    const wumble::Date now = setup_.context.loop.now();
    tag_->setText(QString::fromStdString(content_.tag), tagFill(static_cast<int>(content_.pet.revealed())));
    chip_->setStreak(static_cast<int>(content_.streak.value_or(0)), true);
    dots_->setSteps(static_cast<int>(content_.pet.revealed()), dotsOfADay);
    const BreakSizes sizes{.controls = controls_.sizes(content_.controls),
                           .ring = ring_->sizeHint(),
                           .dots = dots_->sizeHint(),
                           .tag = sizeOf(*tag_),
                           .chip = sizeOf(*chip_),
                           .lock = faceSize(*lockButton_)};
    const QRectF petBefore = layout_.pet.isEmpty() ? QRectF() : petPlace(now);
    const QRectF ringBefore = layout_.ring;
    layout_ = layoutBreak(content_, sizes, QSizeF(size()), appearance_);
    if (!petBefore.isEmpty() && petBefore != layout_.pet && !appearance_.reduceMotion) {
        petFrom_ = petBefore;
        petMovedAt_ = now;
    }
    controls_.show(content_.controls, layout_.controls, now, isSameScene);
    placeThings(ringBefore);
    frame();
    update();
}

/// A ring that stays where it is stays what it is, whatever words come and go around it.
void BreakView::placeThings(const QRectF& ringBefore) {
    if (content_.ring) {
        if (!ring_->isVisibleTo(this) || ringBefore != layout_.ring) {
            ringAt_ = sceneAt_;
        }
        ring_->setValue(*content_.ring);
    }
    dots_->setVisible(content_.showsDots);
    tag_->setVisible(!content_.tag.empty());
    chip_->setVisible(content_.streak.has_value());
    lockButton_->setVisible(content_.showsLock || lockButton_->isVisibleTo(this));
    placeLanding(*tag_, layout_.tag);
    placeLanding(*chip_, layout_.chip);
    tag_->raise();
    chip_->raise();
}

void BreakView::resizeEvent(QResizeEvent*) {
    if (content_.scene != BreakScene::empty) {
        layout_.pet = {};
        layOut(false);
    }
}

bool BreakView::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress && setup_.keyPressed &&
        setup_.keyPressed(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

bool BreakView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && setup_.keyPressed &&
        setup_.keyPressed(*static_cast<QKeyEvent*>(event))) {
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quietlark
