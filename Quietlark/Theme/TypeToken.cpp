#include "Quietlark/Theme/TypeToken.h"

#include "Quietlark/Theme/EmbeddedFonts.h"

#include "WumbleCore/Life/Vocabulary.h"

#include <QFontDatabase>

#include <cmath>

namespace quietlark {

static_assert(wumble::isInOrder(typeScale));

namespace {

constexpr int usualWidth = 100;

/// Registers what is embedded, without copying it, and knows what that brought.
struct Faces {
    bool areEmbedded = false;
    QString fallback = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();

    Faces() {
        for (const std::string_view file : embeddedFonts()) {
            const auto data = QByteArray::fromRawData(file.data(), static_cast<qsizetype>(file.size()));
            areEmbedded = QFontDatabase::addApplicationFontFromData(data) >= 0;
        }
    }

    QString family(const char* name) const { return areEmbedded ? QString::fromLatin1(name) : fallback; }
};

const Faces& faces() {
    static const Faces known;
    return known;
}

QFont displayFace(int width) {
    const bool isNarrow = width != usualWidth;
    QFont font(faces().family(isNarrow ? Fonts::numerals : Fonts::display));
    font.setWeight(QFont::Bold);
    if (isNarrow && !faces().areEmbedded) {
        font.setStretch(width);
    }
    return font;
}

QFont bodyFace(QFont::Weight weight) {
    QFont font(faces().family(Fonts::body));
    font.setWeight(weight);
    return font;
}

QFont labelFace() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setWeight(QFont::Bold);
    return font;
}

} // namespace

QFont font(TypeToken token, std::optional<QFont::Weight> weight) {
    const auto& row = wumble::rowOf(typeScale, token);
    QFont font = row.typeface == Typeface::display ? displayFace(row.width)
                 : row.typeface == Typeface::body  ? bodyFace(weight.value_or(QFont::Medium))
                                                   : labelFace();
    font.setPixelSize(static_cast<int>(row.size));
    return font;
}

QFont font(TypeToken token, const Appearance& appearance, std::optional<QFont::Weight> weight) {
    QFont scaled = font(token, weight);
    scaled.setPixelSize(static_cast<int>(std::lround(scaled.pixelSize() * appearance.textScale)));
    return scaled;
}

} // namespace quietlark
