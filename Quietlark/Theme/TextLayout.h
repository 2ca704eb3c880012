#pragma once

#include "Quietlark/Theme/Role.h"
#include "Quietlark/Theme/TypeToken.h"

#include <QSizeF>
#include <QString>
#include <QStringList>

class QPainter;
class QRectF;

/// Words in a place: wrapped between words (and within one that is longer than a line), with the last line never one
/// word alone, cut off with an ellipsis where they are too long, and from the right where their script is.
namespace quietlark {

struct TextStyle {
    TypeToken token = TypeToken::body;
    Role ink = Role::text;
    Qt::Alignment alignment =
        Qt::AlignLeft; ///< left is where the script begins; at the top unless it says more
    int mostLines = 1; ///< one line also turns line breaks into spaces
    std::optional<QFont::Weight> weight = std::nullopt; ///< of the body face alone
    bool balanced = false;                              ///< lines of about one length, for titles
};

/// What the text takes when it may be `width` wide. Never wider than that.
QSizeF measureText(const QString& text, const TextStyle& style, double width, const Appearance& appearance);

/// Draws what fits the rectangle and nothing outside of it, in the style's ink.
void drawText(QPainter& painter, const QRectF& rect, const QString& text, const TextStyle& style,
              const Appearance& appearance);

/// The same in another colour.
void drawText(QPainter& painter, const QRectF& rect, const QString& text, const TextStyle& style,
              const QColor& ink, const Appearance& appearance);

/// The first of them that needn't be cut off at that width, or the last; empty without any.
QString firstThatFits(const QStringList& alternatives, const TextStyle& style, double width,
                      const Appearance& appearance);

} // namespace quietlark
