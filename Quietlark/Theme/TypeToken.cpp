#include "Quietlark/Theme/TypeToken.h"

#include "WumbleCore/Life/Vocabulary.h"

#include <QFontDatabase>

#include <cmath>

namespace quietlark {

static_assert(wumble::isInOrder(typeScale));

namespace {

QString& displayFamily() {
    static QString family;
    return family;
}

QString installed(const QString& family) {
    const bool known = !family.isEmpty() && QFontDatabase::hasFamily(family);
    return known ? family : QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

QFont face(Typeface typeface, std::optional<QFont::Weight> weight) {
    QFont font;
    switch (typeface) {
    case Typeface::display:
        font.setFamily(installed(displayFamily()));
        font.setWeight(QFont::Bold);
        break;
    case Typeface::body:
        font.setFamily(installed(QString::fromUtf8(Fonts::body)));
        font.setWeight(weight.value_or(QFont::Medium));
        break;
    case Typeface::monospaced:
        font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        font.setWeight(QFont::Bold);
        break;
    }
    return font;
}

} // namespace

void Fonts::setDisplayFamily(std::string_view family) { displayFamily() = QString::fromUtf8(family); }

QFont font(TypeToken token, std::optional<QFont::Weight> weight) {
    const auto& row = wumble::rowOf(typeScale, token);
    QFont font = face(row.typeface, weight);
    font.setPixelSize(static_cast<int>(row.size));
    font.setStretch(row.width);
    return font;
}

QFont font(TypeToken token, const Appearance& appearance, std::optional<QFont::Weight> weight) {
    QFont scaled = font(token, weight);
    scaled.setPixelSize(static_cast<int>(std::lround(scaled.pixelSize() * appearance.textScale)));
    return scaled;
}

} // namespace quietlark
