#include "Quietlark/Pet/WumbleView.h"

#include "Quietlark/Pet/Ease.h"
#include "Quietlark/Pet/WumbleAnimator.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Role.h"
#include "Quietlark/Theme/Sizes.h"
#include "Quietlark/Theme/Sticker.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace quietlark {

namespace {

using wumble::WumbleGesture;
using wumble::WumbleJelly;

constexpr int livelyFrames = 16;   ///< milliseconds from frame to frame while something quick goes on
constexpr int calmFrames = 33;     ///< and while it only breathes
constexpr double freshMood = 2.5;  ///< seconds in which a new mood may be quick
constexpr double pullLength = 0.6; ///< of its width, how far a full pull drags it
constexpr double firstTouch = 4;   ///< points that a hand may tremble in a click
constexpr double settled = 1.6;    ///< seconds after which a pull that was let go has died down

int untilNextBlink(double t) { return static_cast<int>(std::ceil(1000 * WumbleAnimator::untilBlink(t))); }

const WumbleJelly& jellyFor(bool reduceMotion) {
    return reduceMotion ? WumbleJelly::stiff : WumbleJelly::wumble;
}

} // namespace

std::function<void(WumbleGesture)> WumbleView::onPoke;
std::function<std::optional<QPointF>()> WumbleView::desktopPointer;
std::function<double()> WumbleView::usualTime;

WumbleClock usualClock() {
    if (WumbleView::usualTime) {
        return {.now = WumbleView::usualTime};
    }
    static const QElapsedTimer timer = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    return {.now = [] { return static_cast<double>(timer.nsecsElapsed()) / 1e9; }};
}

WumbleView::WumbleView(const wumble::WumbleDay& day, QWidget* parent)
    : QWidget(parent), random_(wumble::systemRandom), familyName_(QStringLiteral("Wumble")) {
    doing_.day = day;
    doing_.moodStart = clock_.now();
    doing_.gazes = true;
    frames_.setTimerType(Qt::PreciseTimer);
    connect(&frames_, &QTimer::timeout, this, [this] { nextFrame(); });
    setFocusPolicy(Qt::TabFocus);
    say();
}

void WumbleView::setDay(const wumble::WumbleDay& day) {
    if (doing_.day != day) {
        doing_.day = day;
        say();
        update();
    }
}

void WumbleView::setMood(wumble::WumbleMood mood) {
    if (doing_.mood != mood) {
        doing_.mood = mood;
        doing_.moodStart = clock_.now();
        nextFrame();
    }
}

void WumbleView::setCalm(bool calm) { doing_.calm = calm; }

void WumbleView::setAppearance(const Appearance& appearance) { quietlark::setAppearance(*this, appearance); }

void WumbleView::setClock(WumbleClock clock) {
    clock_ = std::move(clock);
    doing_.clockStart = clock_.start;
    doing_.moodStart = clock_.start;
}

void WumbleView::setRandom(wumble::Random random) { random_ = std::move(random); }

void WumbleView::setFamilyName(const QString& name) {
    familyName_ = name;
    say();
}

void WumbleView::setFollowsPointer(bool follows) { doing_.gazes = follows; }

void WumbleView::setGaze(std::optional<wumble::Point> gaze) {
    gaze_ = gaze;
    update();
}

void WumbleView::setRoom(double room) {
    room_ = std::clamp(room, 0.0, 0.45);
    update();
}

void WumbleView::setPokable(bool pokable) {
    pokable_ = pokable;
    setFocusPolicy(pokable ? Qt::TabFocus : Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents, !pokable);
}

/// "Wumble, sakura pet, with a straw hat", so that those who don't see it know which one it is.
void WumbleView::say() {
    const auto& day = doing_.day;
    const bool isClump = !day.shows(wumble::RevealStep::arms);
    QString words = QStringLiteral("%1, %2 %3")
                        .arg(familyName_, QString::fromStdString(wumble::name(day.base)).toLower(),
                             isClump ? QStringLiteral("clump") : QStringLiteral("pet"));
    if (day.shows(wumble::RevealStep::accessory)) {
        words += QStringLiteral(", with %1").arg(QString::fromUtf8(wumble::name(day.traits.accessory)));
    }
    if (day.shows(wumble::RevealStep::keepsake)) {
        words += QStringLiteral(" and %1").arg(QString::fromUtf8(wumble::name(day.traits.keepsake)));
    }
    setAccessibleName(words);
}

void WumbleView::react(WumbleGesture gesture, double after) {
    if (!WumbleAnimator::canPlay(doing_.day, gesture)) {
        return;
    }
    doing_.reaction = clock_.now() + after;
    doing_.reactionGesture = gesture;
    nextFrame();
}

void WumbleView::poke() {
    const bool hasPaws = doing_.day.shows(wumble::personalityShows);
    const std::span<const WumbleGesture> choices =
        hasPaws ? std::span<const WumbleGesture>(wumble::silly)
                : std::span<const WumbleGesture>(wumble::sillyWithoutPaws);
    std::vector<WumbleGesture> fresh;
    for (const auto gesture : choices) {
        if (!doing_.poke || gesture != doing_.reactionGesture) {
            fresh.push_back(gesture);
        }
    }
    const auto gesture = fresh.at(random_(fresh.size()));
    doing_.poke = clock_.now();
    react(gesture);
    if (onPoke) {
        onPoke(gesture);
    }
}

Look WumbleView::pointerLook() const {
    if (gaze_) {
        return {gaze_->x, 0.8 * gaze_->y, 0.5 * gaze_->x};
    }
    const bool follows = doing_.gazes && isVisible() && !appearanceOf(*this).reduceMotion;
    const auto pointerAt = follows && desktopPointer ? desktopPointer() : std::nullopt;
    if (!pointerAt) {
        return {};
    }
    const QPointF away = mapFromGlobal(*pointerAt) - QRectF(rect()).center();
    const double scale = std::max(static_cast<double>(width()), 60.0) * 2.5;
    return {std::tanh(away.x() / scale), 0.8 * std::tanh(away.y() / scale),
            0.6 * std::tanh(away.x() / (2 * scale))};
}

double WumbleView::pulledBy(double now, bool reduceMotion) const {
    if (pressedAt_) {
        return pull_;
    }
    if (reduceMotion) {
        return 0;
    }
    return doing_.letGo && now - *doing_.letGo < settled ? pull_ * WumbleAnimator::letGo(now - *doing_.letGo)
                                                         : 0;
}

WumblePose WumbleView::firmPose(double now, const Look& pointer, bool reduceMotion) const {
    WumblePose pose =
        WumbleAnimator::pose(doing_.mood, doing_.day, now - clock_.start, now - doing_.moodStart,
                             reduceMotion, doing_.calm, jellyFor(reduceMotion));
    if (doing_.reaction) {
        pose = WumbleAnimator::reacting(pose, doing_.day, doing_.reactionGesture, now - *doing_.reaction,
                                        reduceMotion);
    }
    pose.look = std::clamp(pose.look + pointer.x, -1.0, 1.0);
    pose.lookY = std::clamp(pose.lookY + pointer.y, -1.0, 1.0);
    pose.turn = {std::clamp(pose.turn.x + 0.8 * pointer.x, -1.0, 1.0),
                 std::clamp(pose.turn.y + 0.7 * pointer.y, -1.0, 1.0)};
    pose.lean = std::clamp(pose.lean + pointer.lean, -1.0, 1.0);
    pose.pull = std::clamp(pose.pull + pulledBy(now, reduceMotion), -1.0, 1.0);
    return pose;
}

WumblePose WumbleView::pose(double now) {
    const bool reduceMotion = appearanceOf(*this).reduceMotion;
    const WumbleJelly& jelly = jellyFor(reduceMotion);
    const Look look = pointerLook();
    memory_.note(look, now);
    memory_.keep(doing_);
    WumblePose firm = firmPose(now, look, reduceMotion);
    const auto key = static_cast<long long>(std::floor(now / WumbleJelly::step));
    std::vector<wumble::Point> history;
    for (int back = 0; back < jelly.samples(); ++back) {
        const auto [place, isNew] = memory_.tops.try_emplace(key - back);
        if (isNew) {
            const double then = static_cast<double>(key - back) * WumbleJelly::step;
            const WumblePose past = firmPose(then, memory_.pointer(then), reduceMotion);
            place->second = SoftWumble::top(past, doing_.day);
            place->second.x += past.lean * jelly.lean;
        }
        history.push_back(place->second);
    }
    memory_.tops.erase(memory_.tops.begin(), memory_.tops.lower_bound(key - jelly.samples()));
    const wumble::Point wobble = jelly.jiggle(history);
    firm.sway = firm.lean * jelly.lean + wobble.x;
    firm.sag += wobble.y;
    return firm;
}

bool WumbleView::isMoving(double now) const {
    if (!appearanceOf(*this).reduceMotion) {
        return true;
    }
    const bool reacts = doing_.reaction && now < *doing_.reaction + duration(doing_.reactionGesture);
    return reacts || doing_.mood == wumble::WumbleMood::blinking ||
           WumbleAnimator::untilBlink(now - clock_.start) == 0;
}

bool WumbleView::isLively(double now) const {
    const bool reacts =
        doing_.reaction && now < *doing_.reaction + duration(doing_.reactionGesture) + settled;
    const bool swings = pressedAt_ || (doing_.letGo && now < *doing_.letGo + settled);
    const bool isLoud =
        doing_.mood == wumble::WumbleMood::celebrate || doing_.mood == wumble::WumbleMood::demonstrate;
    return showsGesture_ || reacts || swings || isLoud || now < doing_.moodStart + freshMood;
}

void WumbleView::nextFrame() {
    update();
    keepMoving();
}

/// Asks for the next frame while it is seen: soon while something moves, else for the next blink.
void WumbleView::keepMoving() {
    if (!isVisible()) {
        return frames_.stop();
    }
    const double now = clock_.now();
    const int interval = !isMoving(now)  ? untilNextBlink(now - clock_.start)
                         : isLively(now) ? livelyFrames
                                         : calmFrames;
    if (!frames_.isActive() || frames_.interval() != interval) {
        frames_.start(interval);
    }
}

void WumbleView::showEvent(QShowEvent*) { nextFrame(); }
void WumbleView::hideEvent(QHideEvent*) { frames_.stop(); }

void WumbleView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double free = room_ * std::min(width(), height());
    const QRectF place = QRectF(rect()).adjusted(free, free, -free, -free);
    const WumblePose shown = pose(clock_.now());
    showsGesture_ = shown.gesture != WumbleGesture::still;
    const Appearance look = appearanceOf(*this);
    SoftWumble::draw(painter, place, doing_.day, shown, SoftWumble::Sticker::dieCut, stickerColours(look));
    if (hasFocus()) {
        const double inside = focusRingReach;
        drawFocusRing(painter, QRectF(rect()).adjusted(inside, inside, -inside, -inside), Radius::control,
                      look);
    }
    keepMoving();
}

void WumbleView::mousePressEvent(QMouseEvent* event) {
    if (!pokable_ || event->button() != Qt::LeftButton) {
        return event->ignore();
    }
    pressedAt_ = event->position();
    pull_ = 0;
}

void WumbleView::mouseMoveEvent(QMouseEvent* event) {
    if (!pressedAt_) {
        return;
    }
    const double away = event->position().x() - pressedAt_->x();
    pull_ = std::tanh(away / (pullLength * std::max(width(), 1)));
    memory_.tops.clear();
    nextFrame();
}

void WumbleView::mouseReleaseEvent(QMouseEvent* event) {
    if (!pressedAt_) {
        return;
    }
    const bool isClick = (event->position() - *pressedAt_).manhattanLength() < firstTouch;
    pressedAt_.reset();
    if (isClick) {
        pull_ = 0;
        return poke();
    }
    doing_.letGo = clock_.now();
    nextFrame();
}

void WumbleView::keyPressEvent(QKeyEvent* event) {
    const bool presses =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!pokable_ || !presses || event->isAutoRepeat()) {
        return QWidget::keyPressEvent(event);
    }
    poke();
}

SoftWumble::Tweaks stickerColours(Appearance appearance) {
    return {.stickerWhite = colour(Role::dieCut, appearance),
            .stickerInk = colour(Role::keyline, appearance)};
}

} // namespace quietlark
