#include "Quietlark/Pet/WumbleAnimator.h"
#include "Quietlark/Renderers/PetCells.h"
#include "Quietlark/Renderers/PetSheets.h"
#include "Quietlark/Theme/Sizes.h"
#include "Quietlark/Theme/TypeToken.h"
#include "WumbleCore/Words/NudgeCopy.h"

namespace quietlark {

namespace {

constexpr QSizeF cardSize{320, 112};
constexpr double petSize = 88;
constexpr double margin = 24;

struct Card {
    wumble::WellnessKind kind;
    wumble::WumbleMood mood;
    double elapsed; ///< seconds into its routine
};

constexpr std::array<Card, 3> cards{{
    {wumble::WellnessKind::blink, wumble::WumbleMood::blinking, 1.2},
    {wumble::WellnessKind::posture, wumble::WumbleMood::sittingUp, 5},
    {wumble::WellnessKind::breath, wumble::WumbleMood::breathing, 6},
}};

/// Flat fill, firm outline, hard shadow to the right and down.
void drawSticker(QPainter& painter, const QRectF& place, Surface surface, Appearance appearance) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(Role::shadow, appearance));
    painter.drawRoundedRect(place.translated(Lift::floating, Lift::floating), Radius::card, Radius::card);
    painter.setPen(QPen(colour(Role::line, appearance), 2));
    painter.setBrush(colour(surface, appearance));
    painter.drawRoundedRect(place, Radius::card, Radius::card);
}

void drawCard(QPainter& painter, const QRectF& place, const Card& card, int variety, Appearance appearance) {
    const auto day = samplePet(wumble::WumbleBase::matcha, 6, variety);
    drawSticker(painter, place, Surface::card, appearance);
    const auto pose = WumbleAnimator::pose(card.mood, day, card.elapsed, card.elapsed, false, true,
                                           wumble::WumbleJelly::wumble);
    const QRectF petPlace(place.x() + 12, place.y() + 12, petSize, petSize);
    petCell({}, day, pose, appearance).draw(painter, petPlace);
    painter.setPen(colour(Role::text, appearance));
    painter.setFont(font(TypeToken::title));
    const QRectF words(petPlace.right() + 16, place.y() + 16, place.right() - petPlace.right() - 32,
                       place.height() - 32);
    painter.drawText(words, Qt::AlignVCenter | Qt::TextWordWrap,
                     QString::fromUtf8(wumble::NudgeCopy::title(card.kind)));
}

} // namespace

bool renderNudgeCards(const std::filesystem::path& folder, Appearance appearance) {
    const auto count = static_cast<int>(cards.size());
    QImage image(
        QSizeF(cardSize.width() + 2 * margin, count * (cardSize.height() + margin) + margin).toSize() * 2,
        QImage::Format_ARGB32_Premultiplied);
    image.fill(colour(Role::page, appearance));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(2, 2);
    for (int place = 0; place < count; ++place) {
        const QPointF corner(margin, margin + place * (cardSize.height() + margin));
        drawCard(painter, {corner, cardSize}, cards[static_cast<std::size_t>(place)], place, appearance);
    }
    painter.end();
    return save(image, folder, "nudge-cards.png");
}

} // namespace quietlark
