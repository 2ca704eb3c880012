#include "Quietlark/Pet/MenuBarIcon.h"

#include "Quietlark/Pet/Ease.h"
#include "Quietlark/Pet/Stage.h"
#include "WumbleCore/Foundation/Match.h"

namespace quietlark::MenuBarIcon {

namespace {

constexpr double iconBox = 22;
constexpr QRgb lightPanelInk = 0x141418;
constexpr QRgb darkPanelInk = 0xF2F2EC;
constexpr int steps = 6;

constexpr Art lump{"M1.2 17.2C1.2 15.8 2.2 14.8 2.6 12.6C3.4 7.2 6.6 3.4 11 3.4C15.4 3.4 18.6 7.2 19.4 12.6"
                   "C19.8 14.8 20.8 15.8 20.8 17.2C20.8 19.6 17.2 19.6 11 19.6C4.8 19.6 1.2 19.6 1.2 17.2Z"};
constexpr double lumpFloor = 19.6;

/// A face in the box of 22. Eyes are holes in the lump.
struct Look {
    double tall = 1;      ///< height of the lump
    double eyeHeight = 4; ///< 0: closed, a line
    double arch = 0;      ///< of a closed eye: above 0 hangs, below 0 smiles
    bool mouth = false;
    bool mark = false;   ///< the mark beside it that says: now
    bool sleeps = false; ///< a small z
    bool faint = false;
};

/// The lump sinks a little and its eyes close as the break comes nearer.
constexpr std::array<Look, steps> tiredness{{
    {.tall = 1, .eyeHeight = 5.6},
    {.tall = 0.96, .eyeHeight = 4.3},
    {.tall = 0.91, .eyeHeight = 3.2},
    {.tall = 0.85, .eyeHeight = 2.2},
    {.tall = 0.79, .eyeHeight = 1.3},
    {.tall = 0.72, .eyeHeight = 0, .arch = 1.6},
}};

Look lookOf(const Mood& mood) {
    return wumble::match(
        mood,
        [](mood::Awake awake) {
            return tiredness.at(static_cast<std::size_t>(std::clamp(awake.sleepiness, 0, steps - 1)));
        },
        [](mood::Due) { return Look{.tall = 1.04, .eyeHeight = 5, .mark = true}; },
        [](mood::OnBreak) { return Look{.tall = 0.95, .eyeHeight = 0, .arch = -2.2, .mouth = true}; },
        [](mood::Paused) {
            return Look{.tall = 0.7, .eyeHeight = 0, .arch = 1.6, .sleeps = true, .faint = true};
        });
}

constexpr double eyeWidth = 2.5;
constexpr double eyeFromMiddle = 3.9;

void drawEye(QPainter& painter, const Look& look, QPointF at) {
    if (look.eyeHeight > 0) {
        painter.drawEllipse(at, eyeWidth / 2, look.eyeHeight / 2);
        return;
    }
    QPainterPath lid;
    lid.moveTo(at.x() - 1.9, at.y() - look.arch * 0.3);
    lid.quadTo(at.x(), at.y() + look.arch, at.x() + 1.9, at.y() - look.arch * 0.3);
    painter.strokePath(lid, QPen(Qt::black, 1.5, Qt::SolidLine, Qt::RoundCap));
}

/// Takes the face out of the lump, so that the panel shows through.
void cutFace(QPainter& painter, const Look& look) {
    const double level = mix(lumpFloor, 11.8, look.tall);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    drawEye(painter, look, {11 - eyeFromMiddle, level});
    drawEye(painter, look, {11 + eyeFromMiddle, level});
    if (look.mouth) {
        QPainterPath smile;
        smile.moveTo(9.8, level + 2.4);
        smile.quadTo(11, level + 3.8, 12.2, level + 2.4);
        painter.strokePath(smile, QPen(Qt::black, 1.2, Qt::SolidLine, Qt::RoundCap));
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

/// A mark with a gap of panel around it.
void drawBeside(QPainter& painter, const QColor& ink, const QPainterPath& path, double width) {
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.strokePath(path, QPen(Qt::black, width + 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.strokePath(path, QPen(ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void drawIcon(QPainter& painter, const Key& key) {
    const Look look = lookOf(key.mood);
    QColor ink = QColor::fromRgb(key.dark ? darkPanelInk : lightPanelInk);
    if (look.faint) {
        ink.setAlphaF(0.7F);
    }
    QTransform squash;
    squash.translate(11, lumpFloor);
    squash.scale(1 + 0.12 * (1 - look.tall), look.tall);
    squash.translate(-11, -lumpFloor);
    painter.fillPath(squash.map(lump.path()), ink);
    cutFace(painter, look);
    if (look.mark) {
        QPainterPath mark;
        mark.moveTo(19, 2.2);
        mark.lineTo(19, 5.4);
        mark.moveTo(19, 8.4);
        mark.lineTo(19, 8.5);
        drawBeside(painter, ink, mark, 2.2);
    }
    if (look.sleeps) {
        QPainterPath z;
        z.moveTo(15.4, 1.6);
        z.lineTo(19.6, 1.6);
        z.lineTo(15.4, 6.2);
        z.lineTo(19.6, 6.2);
        drawBeside(painter, ink, z, 1.4);
    }
}

} // namespace

std::vector<Mood> allMoods() {
    std::vector<Mood> moods;
    moods.reserve(steps + 3);
    for (int sleepiness = 0; sleepiness < steps; ++sleepiness) {
        moods.emplace_back(mood::Awake{sleepiness});
    }
    moods.emplace_back(mood::Due{});
    moods.emplace_back(mood::OnBreak{});
    moods.emplace_back(mood::Paused{});
    return moods;
}

QImage image(const Key& key, int pixels) {
    thread_local std::map<std::pair<Key, int>, QImage> drawn;
    const int size = std::max(pixels, 1);
    const auto [place, isNew] = drawn.try_emplace({key, size});
    if (isNew) {
        QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / iconBox, size / iconBox);
        drawIcon(painter, key);
        painter.end();
        place->second = picture;
    }
    return place->second;
}

void draw(QPainter& painter, const QRectF& place, const Key& key) {
    const double side = std::min(place.width(), place.height());
    const double scale = painter.device() == nullptr ? 1 : painter.device()->devicePixelRatioF();
    const QRectF square(place.center().x() - side / 2, place.center().y() - side / 2, side, side);
    painter.drawImage(square, image(key, static_cast<int>(std::ceil(side * scale))));
}

} // namespace quietlark::MenuBarIcon
