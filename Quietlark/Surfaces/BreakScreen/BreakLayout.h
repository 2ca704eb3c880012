#pragma once

#include "Quietlark/Surfaces/BreakScreen/BreakContent.h"
#include "Quietlark/Theme/Appearance.h"
#include "Quietlark/Theme/TextLayout.h"

#include <QRectF>
#include <vector>

namespace quietlark {

/// How large the controls want to be, in points, without the air around them.
struct BreakSizes {
    std::vector<QSizeF> controls;
    QSizeF ring;
    QSizeF dots;
    QSizeF tag;
    QSizeF chip;
    QSizeF lock;
};

/// Words in their place. They come and go in their order.
struct WordBlock {
    QRectF place;
    QString text;
    TextStyle style;
    int order = 0;

    /// All that they touch, wherever they are on their way.
    QRect reach() const;
};

/// Where everything is. The pet stays where it is from scene to scene, unless the words leave it no room.
struct BreakLayout {
    QRectF pet;
    std::vector<WordBlock> words; ///< title, subtitle, time; those that there are
    std::vector<QRectF> controls;
    QRectF ring;
    QRectF dots;
    QRectF tag;
    QRectF chip;
    WordBlock footer;
    WordBlock clock;
    QRectF lock;
    QRectF confetti; ///< its foot lies where paper comes to rest
};

/// The order in which words come.
namespace order {
inline constexpr int title = 0;
inline constexpr int subtitle = 1;
inline constexpr int ring = 2;
inline constexpr int controls = 3;
inline constexpr int footer = 4;
} // namespace order

BreakLayout layoutBreak(const BreakContent& content, const BreakSizes& sizes, const QSizeF& window,
                        const Appearance& appearance);

/// The style of a footer, and of one that is a hint on its capsule.
TextStyle footerStyle(bool isHint);

/// The capsule of a hint, round its words.
QRectF hintCapsule(const WordBlock& footer, const Appearance& appearance);

} // namespace quietlark
