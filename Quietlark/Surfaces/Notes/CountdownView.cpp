#include "Quietlark/Surfaces/Notes/CountdownView.h"

#include "Quietlark/Model/StatusLine.h"
#include "Quietlark/Surfaces/Notes/PillPlace.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Sticker.h"
#include "WumbleCore/Motion/MotionTokens.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace quietlark {

namespace {

constexpr double pet = 40;
constexpr double petRoom = 56;
constexpr double wordsLeft = 58;
constexpr double wordsRight = 22; ///< to the pill's round end
constexpr double outline = 2;
constexpr double widestWords = PillPlace::room.width() - wordsLeft - wordsRight;

/// How the pill turns from counting to waiting.
constexpr auto turning = wumble::Motion::settle;
constexpr double turnLength = 0.6; ///< seconds in which that spring comes to rest
constexpr auto calmTurning = wumble::Motion::fade;
constexpr double calmTurnDelay = 0.07;

const TextStyle firstStyle{.token = TypeToken::caption, .ink = Role::onPop};
const TextStyle numberStyle{.token = TypeToken::numeralSmall, .ink = Role::onPop};
const TextStyle verbStyle{.token = TypeToken::body, .ink = Role::onPop, .weight = QFont::Bold};

const TextStyle& secondStyle(const HeadsUpWords::Pill& words) {
    return words.waitsForTyping ? verbStyle : numberStyle;
}

double heightOf(const HeadsUpWords::Pill& words, const Appearance& appearance) {
    return measureText(QString::fromStdString(words.first), firstStyle, widestWords, appearance).height() +
           measureText(QString::fromStdString(words.second), secondStyle(words), widestWords, appearance)
               .height();
}

Appearance fitting(const HeadsUpWords::Pill& words, const Appearance& wanted) {
    return withFittingText(wanted, [&](const Appearance& tried) {
        const auto isWhole = [&](const std::string& text, const TextStyle& style) {
            const auto line = QString::fromStdString(text);
            return firstThatFits({line, {}}, style, widestWords, tried) == line;
        };
        return heightOf(words, tried) <= CountdownView::height - 2 * outline &&
               isWhole(words.first, firstStyle) && isWhole(words.second, secondStyle(words));
    });
}

double widthOf(const HeadsUpWords::Pill& words, const Appearance& appearance) {
    const auto width = [&](const std::string& text, const TextStyle& style) {
        return measureText(QString::fromStdString(text), style, widestWords, appearance).width();
    };
    return std::max(width(words.first, firstStyle), width(words.second, secondStyle(words)));
}

/// The widest of all that the pill may come to say while it is there.
double wordsWidth(const AppState& state, const Appearance& appearance) {
    double widest = widthOf(HeadsUpWords::pill(state, false), appearance);
    for (const char* verb : {"finish dragging", "finish dictating", "finish typing"}) {
        const HeadsUpWords::Pill waiting{.waitsForTyping = true, .first = "Break waits", .second = verb};
        widest = std::max(widest, widthOf(waiting, fitting(waiting, appearance)));
    }
    return std::min(widest, widestWords);
}

QColor between(const QColor& from, const QColor& to, double share) {
    const auto mix = [&](float a, float b) {
        return std::clamp(a + (b - a) * static_cast<float>(share), 0.0F, 1.0F);
    };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}

void drawLines(QPainter& painter, const HeadsUpWords::Pill& words, double width, const Appearance& wanted) {
    const auto appearance = fitting(words, wanted);
    const double room = width - wordsLeft - wordsRight / 2;
    const auto line = [&](const std::string& text, const TextStyle& style, double top) {
        const auto string = QString::fromStdString(text);
        const double high = measureText(string, style, room, appearance).height();
        drawText(painter, {wordsLeft, top, room, high}, string, style, appearance);
        return top + high;
    };
    const double top = (CountdownView::height - heightOf(words, appearance)) / 2;
    line(words.second, secondStyle(words), line(words.first, firstStyle, top));
}

} // namespace

CountdownView::CountdownView(const AppState& state, MainLoop& loop, const Appearance& appearance,
                             std::shared_ptr<const ObservedPresence> presence)
    : state_(state), loop_(loop), presence_(std::move(presence)),
      width_(wordsLeft + wordsWidth(state, appearance) + wordsRight),
      pet_(*this, state.today.value(), loop, {8, 8, pet, pet}, {0, 0, petRoom, petRoom}),
      refreshing_(loop, [this] { refresh(); }), frames_(loop, [this](double) { turn(); }) {
    resize(QSizeF(width_, height).toSize());
    pet_.view().setPokable(false);
    const auto follows = [&](const auto&... fields) {
        (observers_.emplace_back(observe(fields, [this] { refreshing_.ask(); })), ...);
    };
    follows(state.secondsUntilBreak, state.upcomingKind, state.hold, state.typingHoldEnds, state.now,
            state.dragging, state.typingNow, state.detectorStatus);
    refresh();
}

void CountdownView::refresh() {
    if (presence_->value().left) {
        return;
    }
    typedAlong_ = typedAlong_ || state_.typingNow.value();
    auto fresh = HeadsUpWords::pill(state_, typedAlong_);
    pet_.view().setMood(fresh.waitsForTyping ? typingAlongMood(state_) : wumble::WumbleMood::peek);
    if (fresh == words_) {
        return;
    }
    if (fresh.waitsForTyping != words_.waitsForTyping) {
        before_ = words_;
        turnedAt_ = loop_.now();
        frames_.start();
    }
    words_ = std::move(fresh);
    setAccessibleName(QString::fromStdString(words_.first + " " + words_.second));
    update();
}

bool CountdownView::reducesMotion() const { return appearanceOf(*this).reduceMotion; }

void CountdownView::turn() {
    const double elapsed = loop_.now() - turnedAt_;
    if (elapsed < 0 || elapsed >= turnLength) {
        frames_.stop();
    }
    update();
}

/// How far it has turned to what it says now; just over 1 on its way.
double CountdownView::turned() const {
    const double elapsed = loop_.now() - turnedAt_;
    return reducesMotion() ? calmTurning.value(elapsed - calmTurnDelay) : turning.value(elapsed);
}

void CountdownView::paintEvent(QPaintEvent* event) {
    constexpr double rise = 6; ///< points that the lines come up
    const auto appearance = appearanceOf(*this);
    pet_.view().setAppearance(appearance);
    const double share = before_.first.empty() ? 1 : turned();
    const auto fill = [&](const HeadsUpWords::Pill& words) {
        return colour(words.waitsForTyping ? Surface::wumble : Surface::time, appearance);
    };
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = outlineWidth(outline, appearance);
    painter.setPen(QPen(colour(Role::line, appearance), line));
    painter.setBrush(between(fill(before_), fill(words_), share));
    const QRectF pill = QRectF(0, 0, width_, height).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    if (isLeftOf(wordsLeft, *event)) {
        return;
    }
    const double moved = reducesMotion() ? 0 : rise * (1 - share);
    if (share < 0.5) {
        painter.setOpacity(1 - 2 * share);
        drawLines(painter, before_, width_, appearance);
    } else {
        painter.setOpacity(std::min(2 * share - 1, 1.0));
        painter.translate(0, moved);
        drawLines(painter, words_, width_, appearance);
    }
}

} // namespace quietlark
