#include "Quietlark/Surfaces/Notes/ToastView.h"

#include "Quietlark/Surfaces/Notes/PointerHover.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Controls/IconButton.h"
#include "Quietlark/Theme/Symbol.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace quietlark {

namespace {

constexpr double tile = 96; ///< width of the pet's tile
constexpr double pet = 64;
constexpr double inset = 14;   ///< between the words and the card's edges
constexpr double control = 24; ///< of the close control
constexpr double controlInset = 8;
constexpr double chevron = 14;
constexpr double chevronRoom = 22;

Surface tileOf(wumble::WumbleMood mood) {
    return mood == wumble::WumbleMood::celebrate ? Surface::wumbleTileWarm : Surface::wumbleTile;
}

double wordsRight(const wumble::Toast& toast) {
    const double beside = toast.closable ? control + controlInset : inset;
    return ToastView::width - beside - (toast.action ? chevronRoom : 0);
}

QRectF words(const wumble::Toast& toast, double height) {
    const double left = tile + inset;
    return {left, inset, wordsRight(toast) - left, height - 2 * inset};
}

NoteWords wordsOf(const wumble::Toast& toast, const QSizeF& room, const Appearance& appearance) {
    return {QString::fromStdString(toast.title), QString::fromStdString(toast.subtitle.value_or("")), room,
            appearance};
}

double heightFor(const wumble::Toast& toast, const Appearance& appearance) {
    const double wanted =
        wordsOf(toast, words(toast, ToastView::tallHeight).size(), appearance).height() + 2 * inset;
    return toast.subtitle && wanted > ToastView::usualHeight ? ToastView::tallHeight : ToastView::usualHeight;
}

} // namespace

ToastView::ToastView(const wumble::Toast& toast, const wumble::WumbleDay& day, const MainLoop& loop,
                     const Appearance& appearance)
    : toast_(toast), height_(heightFor(toast, appearance)) {
    resize(noteSize().toSize());
    const QRectF petRoom(0, (height_ - tile) / 2, tile, tile);
    const QRectF petPlace((tile - pet) / 2, (height_ - pet) / 2, pet, pet);
    pet_.emplace(*this, day, loop, petPlace, petRoom);
    pet_->view().setMood(toast.mood);
    addCloseControl();
    setCursor(toast.action ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setAccessibleName(QString::fromStdString(toast.title));
    setAccessibleDescription(QString::fromStdString(toast.subtitle.value_or("")));
    new PointerHover(*this, [this](bool inside) { onHover(inside); });
}

void ToastView::addCloseControl() {
    if (!toast_.closable) {
        return;
    }
    auto* close = new IconButton(Symbol::close, QStringLiteral("Close"), this);
    close->setGeometry(QRectF(width - control - controlInset, controlInset, control, control).toRect());
    connect(close, &QAbstractButton::clicked, this, [this] { onClose(); });
}

void ToastView::paintEvent(QPaintEvent* event) {
    const auto appearance = appearanceOf(*this);
    pet_->view().setAppearance(appearance);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawNoteCard(painter, QRectF({}, noteSize()), tileOf(toast_.mood), tile, appearance);
    const QRectF place = words(toast_, height_);
    if (isLeftOf(place.left(), *event)) {
        return;
    }
    wordsOf(toast_, place.size(), appearance).draw(painter, place);
    if (toast_.action) {
        const QRectF mark(place.right() + (chevronRoom - chevron) / 2, (height_ - chevron) / 2, chevron,
                          chevron);
        drawSymbol(painter, mark, Symbol::chevronRight, colour(Role::text, appearance));
    }
}

void ToastView::mousePressEvent(QMouseEvent* event) { pressed_ = event->button() == Qt::LeftButton; }

void ToastView::mouseReleaseEvent(QMouseEvent* event) {
    if (std::exchange(pressed_, false) && rect().contains(event->position().toPoint())) {
        onTap();
    }
}

} // namespace quietlark
