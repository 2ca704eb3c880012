#include "Quietlark/Surfaces/BreakScreen/BreakControls.h"

#include "Quietlark/Surfaces/BreakScreen/BreakLayout.h"
#include "Quietlark/Surfaces/Fading.h"
#include "WumbleCore/Life/Vocabulary.h"
#include "WumbleCore/Motion/MotionTokens.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quietlark {

namespace {

using Kind = StickerButton::Kind;
namespace Motion = wumble::Motion;

struct Face {
    BreakControl value;
    Kind kind;
    std::optional<Symbol> symbol = std::nullopt;
};

constexpr std::array<Face, 7> faces{{
    {BreakControl::endBreak, Kind::primary},
    {BreakControl::endPreview, Kind::plain, Symbol::close},
    {BreakControl::snoozeShort, Kind::plain},
    {BreakControl::snoozeLong, Kind::plain},
    {BreakControl::skip, Kind::plain, Symbol::forwardEnd},
    {BreakControl::skipThisBreak, Kind::plain, Symbol::forwardEnd},
    {BreakControl::backToWork, Kind::primary},
}};
static_assert(wumble::isInOrder(faces));

StickerButton* makeButton(const Face& face, QWidget& parent) {
    const auto words = title(face.value);
    const auto text = QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
    auto* button = new StickerButton(text, face.kind, &parent);
    if (face.symbol) {
        button->setSymbol(*face.symbol);
    }
    setFading(*button, 0);
    button->hide();
    return button;
}

} // namespace

void placeFace(QWidget& button, const QRectF& face, double drop) {
    const int air = PressControl::margin;
    const QPoint corner(static_cast<int>(std::lround(face.x())) - air,
                        static_cast<int>(std::lround(face.y() + drop)) - air);
    const QSize size(static_cast<int>(std::ceil(face.width())) + 2 * air,
                     static_cast<int>(std::ceil(face.height())) + 2 * air);
    button.setGeometry(QRect(corner, size));
}

QSizeF faceSize(const QWidget& button) {
    return QSizeF(button.sizeHint()) - QSizeF(2 * PressControl::margin, 2 * PressControl::margin);
}

BreakControls::BreakControls(QWidget& parent, const std::function<void(BreakControl)>& pressed) {
    for (const Face& face : faces) {
        StickerButton* button = makeButton(face, parent);
        QObject::connect(button, &QAbstractButton::clicked, button,
                         [pressed, control = face.value] { pressed(control); });
        items_.push_back({.control = face.value, .button = button, .place = {}, .movedFrom = {}});
        buttons_.push_back(button);
    }
}

std::vector<QSizeF> BreakControls::sizes(const std::vector<BreakControl>& controls) const {
    std::vector<QSizeF> sizes;
    sizes.reserve(controls.size());
    for (const BreakControl control : controls) {
        sizes.push_back(faceSize(*buttons_.at(static_cast<std::size_t>(control))));
    }
    return sizes;
}

void BreakControls::want(Item& item, const QRectF& place, wumble::Date now, bool isSameScene) {
    const bool isNew = !item.isWanted;
    if (isSameScene && isNew) {
        item.appearedAt = now;
        item.movedAt.reset();
    } else if (isSameScene && item.place.topLeft() != place.topLeft()) {
        item.movedFrom = cornerAt(item, now);
        item.movedAt = now;
    } else if (!isSameScene) {
        item.appearedAt.reset();
        item.movedAt.reset();
    }
    item.place = place;
    item.isWanted = true;
    item.isFormer = false;
    item.button->show();
}

void BreakControls::drop(Item& item, bool isSameScene) {
    item.isFormer = item.isWanted && !isSameScene;
    item.isWanted = false;
    item.button->setVisible(item.isFormer);
}

void BreakControls::show(const std::vector<BreakControl>& controls, const std::vector<QRectF>& places,
                         wumble::Date now, bool isSameScene) {
    for (Item& item : items_) {
        const auto found = std::ranges::find(controls, item.control);
        if (found == controls.end()) {
            drop(item, isSameScene);
        } else {
            want(item, places.at(static_cast<std::size_t>(found - controls.begin())), now, isSameScene);
        }
    }
}

QPointF BreakControls::cornerAt(const Item& item, wumble::Date now) {
    const QPointF there = item.place.topLeft();
    if (!item.movedAt || now < *item.movedAt) {
        return there;
    }
    return item.movedFrom + (there - item.movedFrom) * Motion::rise.value(now - *item.movedAt);
}

void BreakControls::poseItem(Item& item, const WordTimes& times, wumble::Date now) {
    if (item.isFormer) {
        const double left = formerWords(times, now);
        setFading(*item.button, left);
        item.button->setVisible(left > 0);
        item.isFormer = left > 0;
        return;
    }
    const EntrancePose pose = wordPose(times, order::controls, now);
    const bool fadesIn = item.appearedAt && now >= *item.appearedAt;
    setFading(*item.button, pose.opacity * (fadesIn ? Motion::rise.value(now - *item.appearedAt) : 1));
    placeFace(*item.button, {cornerAt(item, now), item.place.size()}, pose.drop);
}

void BreakControls::pose(const WordTimes& times, wumble::Date now) {
    for (Item& item : items_) {
        if (item.isWanted || item.isFormer) {
            poseItem(item, times, now);
        }
    }
}

wumble::Date BreakControls::movingUntil() const {
    wumble::Date until = wumble::earliestWrittenDate;
    for (const Item& item : items_) {
        for (const auto& since : {item.appearedAt, item.movedAt}) {
            if (since && item.isWanted) {
                until = std::max(until, *since + Motion::rise.duration);
            }
        }
    }
    return until;
}

void BreakControls::setAwake(bool awake) {
    for (const Item& item : items_) {
        item.button->setAttribute(Qt::WA_TransparentForMouseEvents, !awake || !item.isWanted);
    }
}

bool BreakControls::loseFocus(const std::vector<BreakControl>& controls) const {
    return std::ranges::any_of(items_, [&](const Item& item) {
        return item.button->hasFocus() && std::ranges::find(controls, item.control) == controls.end();
    });
}

} // namespace quietlark
