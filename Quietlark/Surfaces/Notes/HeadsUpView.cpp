#include "Quietlark/Surfaces/Notes/HeadsUpView.h"

#include "Quietlark/Model/StatusLine.h"
#include "Quietlark/Surfaces/Fading.h"
#include "Quietlark/Surfaces/Notes/PointerHover.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Controls/StickerButton.h"
#include "WumbleCore/Life/WumblePersonality.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <ranges>
#include <utility>

namespace quietlark {

namespace {

constexpr double tile = 104; ///< width of the pet's tile
constexpr double pet = 72;
constexpr double inset = 14;
constexpr double wordsLeft = tile + inset + 2;
constexpr double wordsWidth = HeadsUpView::cardSize.width() - wordsLeft - inset;
constexpr double lineGap = 2;
constexpr double buttonsAbove = 8;                    ///< least space between the words and the buttons
constexpr double buttonGap = 8;                       ///< between faces
constexpr double buttonMargin = PressControl::margin; ///< around a button's face, for its shadow
constexpr double largestButtonText = 1.15;            ///< beyond it the words above would have to shrink
constexpr double morphRise = 8; ///< points that words come up as they take the place of others

constexpr wumble::Motion::Curve morphing{
    .duration = HeadsUpAnswer::morphLength, .x1 = 0.3, .y1 = 0, .x2 = 0.2, .y2 = 1};

const QRectF petRoom(0, (HeadsUpView::cardSize.height() - tile) / 2, tile, tile);
const QRectF petPlace((tile - pet) / 2, (HeadsUpView::cardSize.height() - pet) / 2, pet, pet);
const QRectF cardPlace({}, HeadsUpView::cardSize);

const TextStyle headlineStyle{.token = TypeToken::title};
const TextStyle statusStyle{.token = TypeToken::callout, .ink = Role::textMuted};

StickerButton::Kind kindOf(HeadsUpWords::Button::Does does) {
    using Does = HeadsUpWords::Button::Does;
    return does == Does::startBreak ? StickerButton::Kind::primary
           : does == Does::skip     ? StickerButton::Kind::quiet
                                    : StickerButton::Kind::plain;
}

double lineHeight(const TextStyle& style, const Appearance& appearance) {
    return measureText(QStringLiteral("Xg"), style, wordsWidth, appearance).height();
}

} // namespace

HeadsUpView::HeadsUpView(const AppState& state, std::function<HeadsUpWords::Choices()> choices,
                         MainLoop& loop, Followed followed)
    : state_(state), choices_(std::move(choices)), loop_(loop), followed_(std::move(followed)),
      pet_(*this, state.today.value(), loop, petPlace, petRoom), refreshing_(loop, [this] { refresh(); }),
      frames_(loop, [this](double) { morph(); }) {
    resize(cardSize.toSize());
    new PointerHover(*this, [this](bool inside) { onHover(inside); });
    follow();
    refresh();
    greet();
}

HeadsUpView::~HeadsUpView() = default;

void HeadsUpView::follow() {
    const auto follows = [this](const auto&... fields) {
        (observers_.emplace_back(observe(fields, [this] { refreshing_.ask(); })), ...);
    };
    follows(state_.secondsUntilBreak, state_.upcomingKind, state_.hold, state_.dragging,
            state_.detectorStatus, state_.breatherAfter, state_.ignoringSmartPause, state_.rawSmartActivity,
            state_.snoozesRemaining, state_.canSnooze, state_.settings, state_.now, state_.today);
    observers_.emplace_back(observe(*followed_.hello, [this] { greet(); }));
    observers_.emplace_back(observe(*followed_.answer, [this] { turnIntoAnswer(); }));
}

HeadsUpView::Content HeadsUpView::content() const {
    return {.headline = HeadsUpWords::headline(state_),
            .statusLines = HeadsUpWords::statusLines(state_),
            .buttons = HeadsUpWords::buttons(choices_())};
}

/// A card that leaves or answers has nothing new to tell.
void HeadsUpView::refresh() {
    if (followed_.presence->value().left || followed_.answer->value().toast) {
        return;
    }
    pet_.view().setDay(state_.today.value());
    pet_.view().setMood(isHeldByTyping(state_) ? typingAlongMood(state_) : wumble::WumbleMood::peek);
    Content fresh = content();
    if (fresh == content_) {
        return;
    }
    const bool sameButtons = fresh.buttons == content_.buttons;
    content_ = std::move(fresh);
    if (!sameButtons) {
        rebuildButtons();
    }
    setAccessibleName(QString::fromStdString(content_.headline));
    setAccessibleDescription(QString::fromStdString(content_.statusLines.front()));
    update();
}

void HeadsUpView::greet() {
    const auto& hello = followed_.hello->value();
    if (hello.started) {
        const auto personality = state_.today.value().traits.personality;
        pet_.view().react(about(personality).greeting, hello.after);
    }
}

void HeadsUpView::rebuildButtons() {
    for (StickerButton* button : std::exchange(buttons_, {})) {
        button->hide();
        button->deleteLater();
    }
    for (const auto& words : content_.buttons) {
        auto* button = new StickerButton(QString::fromStdString(words.text), kindOf(words.does), this);
        button->setAccessibleName(QString::fromStdString(words.spoken));
        button->setToolTip(QString::fromStdString(words.help));
        connect(button, &QAbstractButton::clicked, this, [this, words] { onPress(words); });
        button->show();
        buttons_.push_back(button);
    }
    placeButtons(appearanceOf(*this));
}

/// In one row at the bottom, with the largest text with which it fits.
void HeadsUpView::placeButtons(const Appearance& appearance) {
    placedFor_ = appearance;
    Appearance wanted = appearance;
    wanted.textScale = std::min(wanted.textScale, largestButtonText);
    withFittingText(wanted, [this](const Appearance& tried) {
        double wide = -buttonGap;
        for (StickerButton* button : buttons_) {
            setAppearance(*button, tried);
            wide += button->sizeHint().width() - 2 * buttonMargin + buttonGap;
        }
        return wide <= wordsWidth;
    });
    double left = wordsLeft;
    for (StickerButton* button : buttons_) {
        const QSizeF size = button->sizeHint();
        const double top = cardSize.height() - inset - Lift::raised - size.height() + buttonMargin;
        button->setGeometry(QRectF(QPointF(left - buttonMargin, top), size).toRect());
        left += size.width() - 2 * buttonMargin + buttonGap;
    }
}

void HeadsUpView::turnIntoAnswer() {
    const auto& toast = followed_.answer->value().toast;
    if (!toast) {
        return;
    }
    pet_.view().setMood(toast->mood);
    setAccessibleName(QString::fromStdString(toast->title));
    setAccessibleDescription(QString::fromStdString(toast->subtitle.value_or("")));
    for (StickerButton* button : buttons_) {
        button->setAttribute(Qt::WA_TransparentForMouseEvents);
        button->setFocusPolicy(Qt::NoFocus);
    }
    frames_.start();
    morph();
}

double HeadsUpView::morphed() const {
    const auto& answer = followed_.answer->value();
    return answer.toast ? morphing.value(loop_.now() - answer.since) : 0;
}

/// The words before are gone halfway, those after come from there.
void HeadsUpView::morph() {
    const double left = std::max(1 - 2 * morphed(), 0.0);
    for (StickerButton* button : buttons_) {
        setFading(*button, left);
        button->setVisible(left > 0);
    }
    const double elapsed = loop_.now() - followed_.answer->value().since;
    if (elapsed < 0 || elapsed >= HeadsUpAnswer::morphLength) {
        frames_.stop();
    }
    update();
}

void HeadsUpView::paintEvent(QPaintEvent* event) {
    const auto appearance = appearanceOf(*this);
    pet_.view().setAppearance(appearance);
    if (placedFor_ != appearance) {
        placeButtons(appearance);
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawNoteCard(painter, cardPlace, Surface::wumbleTile, tile, appearance);
    if (isLeftOf(wordsLeft, *event)) {
        return;
    }
    const double progress = morphed();
    const double rise = appearance.reduceMotion ? 0 : morphRise;
    if (progress < 0.5) {
        painter.setOpacity(1 - 2 * progress);
        painter.translate(0, -rise * progress);
        drawWords(painter, appearance);
    } else {
        painter.setOpacity(2 * progress - 1);
        painter.translate(0, rise * (1 - progress));
        drawAnswer(painter, appearance);
    }
}

void HeadsUpView::drawWords(QPainter& painter, const Appearance& wanted) const {
    const double above =
        buttons_.empty() ? cardSize.height() : buttons_.front()->geometry().top() + buttonMargin;
    const double room = above - buttonsAbove - inset;
    const auto appearance = withFittingText(wanted, [&](const Appearance& tried) {
        const QString headline = QString::fromStdString(content_.headline);
        return lineHeight(headlineStyle, tried) + lineGap + lineHeight(statusStyle, tried) <= room &&
               firstThatFits({headline, {}}, headlineStyle, wordsWidth, tried) == headline;
    });
    QStringList lines;
    for (const auto& line : content_.statusLines) {
        lines << QString::fromStdString(line);
    }
    const double headline = lineHeight(headlineStyle, appearance);
    const double status = lineHeight(statusStyle, appearance);
    const double top = inset + std::max(room - headline - lineGap - status, 0.0) / 2;
    drawText(painter, {wordsLeft, top, wordsWidth, headline}, QString::fromStdString(content_.headline),
             headlineStyle, appearance);
    drawText(painter, {wordsLeft, top + headline + lineGap, wordsWidth, status},
             firstThatFits(lines, statusStyle, wordsWidth, appearance), statusStyle, appearance);
}

void HeadsUpView::drawAnswer(QPainter& painter, const Appearance& appearance) const {
    const auto& toast = *followed_.answer->value().toast;
    const QRectF place(wordsLeft, inset, wordsWidth, cardSize.height() - 2 * inset);
    NoteWords(QString::fromStdString(toast.title), QString::fromStdString(toast.subtitle.value_or("")),
              place.size(), appearance)
        .draw(painter, place);
}

} // namespace quietlark
