#include "Quietlark/Pet/WumbleView.h"

#include "Quietlark/Pet/Ease.h"
#include "Quietlark/Pet/WumbleAnimator.h"
#include "Quietlark/Theme/Role.h"

#include <QCursor>
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

} // namespace

std::function<void(WumbleGesture)> WumbleView::onPoke;

WumbleClock realClock() {
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

void WumbleView::setAppearance(Appearance appearance) {
    if (appearance_ != appearance) {
        appearance_ = appearance;
        nextFrame();
    }
}

void WumbleView::setTweaks(const SoftWumble::Tweaks& tweaks) {
    if (tweaks_ != tweaks) {
        tweaks_ = tweaks;
        memory_.tops.clear();
        update();
    }
}

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
void WumbleView::setGaze(std::optional<wumble::Point> gaze) { gaze_ = gaze; }
void WumbleView::setSticker(SoftWumble::Sticker sticker) { sticker_ = sticker; }

void WumbleView::setRoom(double room) {
    room_ = std::clamp(room, 0.0, 0.45);
    update();
}

void WumbleView::setPokable(bool pokable) {
    pokable_ = pokable;
    setFocusPolicy(pokable ? Qt::TabFocus : Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents, !pokable);
}

/// "Wumble, a sakura pet with a straw hat", so that those who don't see it know which one it is.
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
    if (!doing_.gazes || !isVisible()) {
        return {};
    }
    const QPointF away = QPointF(mapFromGlobal(QCursor::pos())) - QRectF(rect()).center();
    const double scale = std::max(static_cast<double>(width()), 60.0) * 2.5;
    return {std::tanh(away.x() / scale), 0.8 * std::tanh(away.y() / scale),
            0.6 * std::tanh(away.x() / (2 * scale))};
}

double WumbleView::pulledBy(double now) const {
    if (pressedAt_) {
        return pull_;
    }
    return doing_.letGo && now - *doing_.letGo < settled ? pull_ * WumbleAnimator::letGo(now - *doing_.letGo)
                                                         : 0;
}

WumblePose WumbleView::firmPose(double now, const Look& pointer, const WumbleJelly& jelly) const {
    const bool still = appearance_.reduceMotion;
    WumblePose pose = WumbleAnimator::pose(doing_.mood, doing_.day, now - clock_.start,
                                           now - doing_.moodStart, still, doing_.calm, jelly);
    if (doing_.reaction) {
        pose =
            WumbleAnimator::reacting(pose, doing_.day, doing_.reactionGesture, now - *doing_.reaction, still);
    }
    pose.look = std::clamp(pose.look + pointer.x, -1.0, 1.0);
    pose.lookY = std::clamp(pose.lookY + pointer.y, -1.0, 1.0);
    pose.turn = {std::clamp(pose.turn.x + 0.8 * pointer.x, -1.0, 1.0),
                 std::clamp(pose.turn.y + 0.7 * pointer.y, -1.0, 1.0)};
    pose.lean = std::clamp(pose.lean + pointer.lean, -1.0, 1.0);
    pose.pull = std::clamp(pose.pull + pulledBy(now), -1.0, 1.0);
    return pose;
}

WumblePose WumbleView::pose(double now) {
    const WumbleJelly& jelly = appearance_.reduceMotion ? WumbleJelly::stiff : WumbleJelly::wumble;
    const Look look = appearance_.reduceMotion ? Look{} : pointerLook();
    memory_.note(look, now);
    memory_.keep(doing_);
    WumblePose firm = firmPose(now, look, jelly);
    const auto key = static_cast<long long>(std::floor(now / WumbleJelly::step));
    std::vector<wumble::Point> history;
    for (int back = 0; back < jelly.samples(); ++back) {
        const auto [place, isNew] = memory_.tops.try_emplace(key - back);
        if (isNew) {
            const double then = static_cast<double>(key - back) * WumbleJelly::step;
            const WumblePose past = firmPose(then, memory_.pointer(then), jelly);
            place->second = SoftWumble::top(past, doing_.day, tweaks_);
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
    const bool changesFace = doing_.reaction && now < *doing_.reaction + duration(doing_.reactionGesture);
    return !appearance_.reduceMotion || changesFace;
}

bool WumbleView::isLively(double now) const {
    const bool reacts =
        doing_.reaction && now < *doing_.reaction + duration(doing_.reactionGesture) + settled;
    const bool swings = pressedAt_ || (doing_.letGo && now < *doing_.letGo + settled);
    const bool isLoud =
        doing_.mood == wumble::WumbleMood::celebrate || doing_.mood == wumble::WumbleMood::demonstrate;
    return showsGesture_ || reacts || swings || isLoud || now < doing_.moodStart + freshMood;
}

/// Draws now, and keeps drawing while it is seen and something moves.
void WumbleView::nextFrame() {
    update();
    const double now = clock_.now();
    if (!isVisible() || !isMoving(now)) {
        return frames_.stop();
    }
    const int interval = isLively(now) ? livelyFrames : calmFrames;
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
    SoftWumble::draw(painter, place, doing_.day, shown, sticker_, stickerColours(appearance_, tweaks_));
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(colour(Role::line, appearance_), 2, Qt::DotLine));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 12, 12);
    }
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

SoftWumble::Tweaks stickerColours(Appearance appearance, SoftWumble::Tweaks tweaks) {
    tweaks.stickerWhite = tweaks.stickerWhite.value_or(colour(Role::dieCut, appearance));
    tweaks.stickerInk = tweaks.stickerInk.value_or(colour(Role::keyline, appearance));
    return tweaks;
}

void drawWumbleStill(QPainter& painter, const QRectF& place, const wumble::WumbleDay& day,
                     wumble::WumbleMood mood, Appearance appearance, SoftWumble::Tweaks tweaks) {
    const auto pose = WumbleAnimator::pose(mood, day, 0, 0, true, true, WumbleJelly::stiff);
    SoftWumble::draw(painter, place, day, pose, SoftWumble::Sticker::dieCut,
                     stickerColours(appearance, tweaks));
}

} // namespace quietlark
