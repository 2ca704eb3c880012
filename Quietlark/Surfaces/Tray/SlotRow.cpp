#include "Quietlark/Surfaces/Tray/SlotRow.h"

#include "Quietlark/Surfaces/TextBlock.h"
#include "Quietlark/Surfaces/Tray/ReadingOrder.h"
#include "Quietlark/Surfaces/Tray/Refill.h"
#include "Quietlark/Theme/Controls/StickerButton.h"
#include "Quietlark/Theme/Text.h"

#include <QHBoxLayout>

namespace quietlark {

SlotRow::SlotRow(QWidget* parent) : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    hide();
}

void SlotRow::setSlot(const TrayWords::Slot& slot) {
    if (slot != slot_) {
        slot_ = slot;
        build();
    }
}

void SlotRow::say(std::optional<QString> words) {
    if (words != said_) {
        said_ = std::move(words);
        build();
    }
}

void SlotRow::build() {
    const bool hadKeyboard = holdsKeyboard(*this);
    empty(*layout());
    if (said_) {
        addWords(*said_);
    } else {
        std::visit([this](const auto& standing) { add(standing); }, slot_);
    }
    showNow(*layout());
    setVisible(said_ || !std::holds_alternative<TrayWords::slot::None>(slot_));
    if (hadKeyboard) {
        takeKeyboard();
    }
}

void SlotRow::takeKeyboard() {
    const auto controls = inReadingOrder(*this);
    if (controls.isEmpty()) {
        focusNextPrevChild(true);
    } else {
        controls.front()->setFocus(Qt::TabFocusReason);
    }
}

void SlotRow::add(const TrayWords::slot::DontWait& offer) {
    auto* button = new StickerButton(text(TrayWords::dontWait), StickerButton::Kind::plain);
    button->setSymbol(Symbol::forward);
    button->setToolTip(text(TrayWords::dontWaitHelp(offer.activity)));
    button->setAccessibleDescription(text(TrayWords::dontWaitSpoken(offer.activity)));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QObject::connect(button, &QAbstractButton::clicked, this, [this] { dontWait(); });
    layout()->addWidget(button);
}

void SlotRow::add(const TrayWords::slot::NotWaiting& controls) {
    addWords(text(TrayWords::notWaitingHowLong));
    auto* undo = new StickerButton(text(TrayWords::waitAgain), StickerButton::Kind::plain);
    undo->setSymbol(Symbol::undo);
    undo->setToolTip(text(TrayWords::waitAgainHelp(controls.activity)));
    undo->setAccessibleDescription(text(TrayWords::waitAgainHelp(controls.activity)));
    QObject::connect(undo, &QAbstractButton::clicked, this, [this] { waitAgain(); });
    layout()->addWidget(undo);
}

void SlotRow::add(const TrayWords::slot::ShareKeepsWaiting& note) { addWords(text(note.text)); }

void SlotRow::addWords(const QString& words) {
    auto* block = new TextBlock(words, {.token = TypeToken::callout,
                                        .ink = Role::textMuted,
                                        .alignment = Qt::AlignLeft | Qt::AlignVCenter,
                                        .mostLines = 3});
    block->setContentsMargins(PressControl::margin, 0, 0, 0);
    static_cast<QHBoxLayout*>(layout())->addWidget(block, 1);
}

} // namespace quietlark
