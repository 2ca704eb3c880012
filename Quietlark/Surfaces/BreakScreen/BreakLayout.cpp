#include "Quietlark/Surfaces/BreakScreen/BreakLayout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace quietlark {

namespace {

constexpr double widestTitle = 880;
constexpr double widestLine = 620;
constexpr double sideMargin = 32;
constexpr double topMargin = 32;
constexpr double bottomMargin = 24;
constexpr double barGap = 16; ///< between the clock and what is below it
constexpr double lockGap = 12;

constexpr double controlSpacing = 12;
constexpr double rowSpacing = 8;
constexpr double controlHeight = 44;
constexpr double footerHeight = 32;

constexpr double leastPet = 40;         ///< a smaller one is none
constexpr QSizeF roomForText(640, 400); ///< takes all of it at its usual size

constexpr double afterPet = 4; ///< the pet's square has air under its foot
constexpr double afterPetTagged = 20;
constexpr double afterTitle = 8;
constexpr double beforeRing = 28;
constexpr double beforeDots = 20;
constexpr double beforeControls = 28;
constexpr double beforeFooter = 12;
constexpr double tagGap = 8;
constexpr double tagBelowPet = 0.035; ///< of the pet's size: the tag hangs from its foot
constexpr double shelf = 36;          ///< the confetti's floor is above its area's foot by this

constexpr double capsulePadding = 14;
constexpr int wordsReach = 10; ///< by which rising words are off their place at most

struct TitleSize {
    TypeToken token;
    int lines;
};

/// The longer a title, the smaller it is set.
constexpr std::array<TitleSize, 3> titleSizes{
    {{TypeToken::breakTitle, 2}, {TypeToken::windowTitle, 4}, {TypeToken::title, 8}}};
constexpr std::array<TitleSize, 2> otherTitleSizes{{{TypeToken::windowTitle, 2}, {TypeToken::title, 4}}};

/// What is given up where there is little room, row by row: the pet becomes small, then the air between things, then
/// words are cut off, and at last the pet goes.
struct Squeeze {
    double smallestPet;
    double air; ///< of what it is elsewhere
    int titleLines;
    int subtitleLines;
    std::size_t titleSize; ///< place in the sizes
};

constexpr std::array<Squeeze, 5> squeezes{
    {{96, 1, 8, 4, 0}, {96, 0.4, 8, 4, 0}, {72, 0.4, 3, 2, 1}, {48, 0.4, 2, 1, 2}, {0, 0.3, 1, 1, 2}}};

TextStyle titleStyle(const TitleSize& size, int mostLines) {
    return {.token = size.token,
            .alignment = Qt::AlignHCenter,
            .mostLines = std::min(size.lines, mostLines),
            .balanced = true};
}

TextStyle subtitleStyle(TypeToken token, int mostLines) {
    return {.token = token,
            .ink = Role::textMuted,
            .alignment = Qt::AlignHCenter,
            .mostLines = mostLines,
            .balanced = true};
}

TextStyle fittingTitle(const QString& text, std::span<const TitleSize> sizes, int mostLines, double width,
                       const Appearance& appearance) {
    for (const TitleSize& size : sizes) {
        const TextStyle style = titleStyle(size, mostLines);
        TextStyle roomier = style;
        ++roomier.mostLines;
        const double height = measureText(text, style, width, appearance).height();
        if (measureText(text, roomier, width, appearance).height() <= height) {
            return style;
        }
    }
    return titleStyle(sizes.back(), mostLines);
}

/// Puts things one below the other, each in the middle.
class Column {
public:
    Column(const QSizeF& window, const Appearance& appearance, double top)
        : window_(window), appearance_(appearance), y_(top) {}

    void skip(double points) { y_ += points; }
    double bottom() const { return y_; }

    QRectF place(const QSizeF& size) {
        const QRectF placed(std::round((window_.width() - size.width()) / 2), y_, size.width(),
                            size.height());
        y_ += size.height();
        return placed;
    }

    WordBlock words(const QString& text, const TextStyle& style, double widest, int order) {
        const double width = std::min(widest, window_.width() - 2 * sideMargin);
        const double height = std::ceil(measureText(text, style, width, appearance_).height());
        return {.place = place({width, height}), .text = text, .style = style, .order = order};
    }

    double widthFor(double widest) const { return std::min(widest, window_.width() - 2 * sideMargin); }

private:
    QSizeF window_;
    const Appearance& appearance_;
    double y_;
};

class Layouter {
public:
    Layouter(const BreakContent& content, const BreakSizes& sizes, const QSizeF& window,
             const Appearance& appearance)
        : content_(content), sizes_(sizes), window_(window), appearance_(appearance) {}

    BreakLayout lay() {
        for (const Squeeze& squeeze : squeezes) {
            squeeze_ = squeeze;
            if (layAll()) {
                break;
            }
        }
        return std::move(layout_);
    }

private:
    /// Whether all of it has found its place.
    bool layAll() {
        layBar();
        const double pet = content_.petSize;
        const double top = restingTop(pet);
        const double room = window_.height() - air(bottomMargin);
        const double over = layColumn(top, pet) - room;
        if (over <= 0) {
            return true;
        }
        const double least = barBottom_ - pet * petAir;
        const double up = std::min(over, std::max(0.0, top - least));
        // The smaller it is, the less air it has above its head.
        const double fitting = std::floor(pet - (over - up) / (1 - petAir));
        const bool isTooSmall = squeeze_.smallestPet == 0 && fitting < leastPet;
        const double smaller = isTooSmall ? 0 : std::max(squeeze_.smallestPet, fitting);
        return layColumn(top - up + (pet - smaller) * petAir, smaller) <= room;
    }

    double air(double points) const { return std::round(points * squeeze_.air); }

    static constexpr double petAir = 0.2; ///< of its size, above its head

    bool isPrimary() const { return content_.isPrimary; }
    double lineHeight(TypeToken token) const {
        return measureText(QStringLiteral("X"), {.token = token}, widestTitle, appearance_).height();
    }

    /// Where the pet begins on a usual break, whatever is shown now.
    double restingTop(double pet) const {
        const double words = isPrimary()
                                 ? lineHeight(TypeToken::breakTitle) + air(afterTitle) +
                                       lineHeight(TypeToken::lead) + air(beforeRing) + sizes_.ring.height() +
                                       air(beforeControls) + controlHeight + air(beforeFooter) + footerHeight
                                 : lineHeight(TypeToken::numeral);
        const double whole = pet + air(afterPet) + words;
        return std::max(std::round((window_.height() - whole) / 2), barBottom_ - pet * petAir);
    }

    void layBar() {
        const TextStyle style{.token = TypeToken::lead, .ink = Role::textMuted};
        const auto text = QString::fromStdString(content_.clock);
        const QSizeF clock = text.isEmpty() ? QSizeF() : measureText(text, style, widestLine, appearance_);
        const QSizeF lock = content_.showsLock ? sizes_.lock : QSizeF();
        const double width = std::ceil(clock.width());
        const double height = std::max(clock.height(), sizes_.lock.height());
        const double middle = std::round(window_.width() / 2);
        layout_.clock = {.place = {middle - width / 2, air(topMargin) + (height - clock.height()) / 2, width,
                                   clock.height()},
                         .text = text,
                         .style = style,
                         .order = order::footer};
        // The clock stays in the middle when the button goes.
        const double left =
            clock.isEmpty() ? middle - lock.width() / 2 : layout_.clock.place.right() + lockGap;
        layout_.lock = {QPointF(std::round(left), air(topMargin) + (height - lock.height()) / 2), lock};
        barBottom_ = air(topMargin) + height + air(barGap);
    }

    /// Gives its lower end.
    double layColumn(double top, double pet) {
        layout_.words.clear();
        Column column(window_, appearance_, top);
        layout_.pet = column.place({pet, pet});
        const bool isTagged = !content_.tag.empty() || content_.streak;
        layTags();
        const double hanging = std::max(sizes_.tag.height(), sizes_.chip.height()) / 2 - tagBelowPet * pet;
        column.skip(isTagged ? std::max(air(afterPetTagged), std::ceil(hanging) + afterPet) : air(afterPet));
        layWords(column);
        if (content_.ring) {
            column.skip(air(beforeRing));
            layout_.ring = column.place(sizes_.ring);
        }
        if (content_.showsDots) {
            column.skip(air(beforeDots));
            layout_.dots = column.place(sizes_.dots);
        }
        if (isPrimary()) {
            layFoot(column);
        }
        return column.bottom();
    }

    void layWords(Column& column) {
        if (!content_.title.empty()) {
            const auto text = QString::fromStdString(content_.title);
            const std::span<const TitleSize> sizes = isPrimary()
                                                         ? std::span<const TitleSize>(titleSizes)
                                                         : std::span<const TitleSize>(otherTitleSizes);
            const auto style =
                fittingTitle(text, sizes.subspan(std::min(squeeze_.titleSize, sizes.size() - 1)),
                             squeeze_.titleLines, column.widthFor(widestTitle), appearance_);
            layout_.words.push_back(column.words(text, style, widestTitle, order::title));
        }
        if (!content_.subtitle.empty()) {
            column.skip(air(afterTitle));
            const auto style =
                subtitleStyle(isPrimary() ? TypeToken::lead : TypeToken::body, squeeze_.subtitleLines);
            layout_.words.push_back(
                column.words(QString::fromStdString(content_.subtitle), style, widestLine, order::subtitle));
        }
        if (!content_.timeLeft.empty()) {
            const TextStyle style{.token = TypeToken::numeral, .alignment = Qt::AlignHCenter};
            layout_.words.push_back(
                column.words(QString::fromStdString(content_.timeLeft), style, widestLine, order::title));
        }
    }

    void layFoot(Column& column) {
        column.skip(air(beforeControls));
        const double below = layControls(column.bottom());
        column.skip(std::max(controlHeight, below - column.bottom()));
        column.skip(air(beforeFooter));
        const auto style = footerStyle(content_.footerIsHint);
        const auto text = QString::fromStdString(content_.footer);
        const double width = column.widthFor(widestTitle);
        const double words =
            std::max(lineHeight(style.token), measureText(text, style, width, appearance_).height());
        layout_.footer = {.place = column.place({width, std::max(footerHeight, std::ceil(words) + 8)}),
                          .text = text,
                          .style = style,
                          .order = order::footer};
    }

    /// As many side by side as there is room for. Gives their lower end.
    double layControls(double top) {
        layout_.controls.clear();
        layout_.confetti = {0, 0, window_.width(), top + shelf};
        const double most = window_.width() - 2 * controlSpacing;
        double bottom = top - rowSpacing;
        for (std::size_t first = 0; first < sizes_.controls.size();) {
            double width = sizes_.controls[first].width();
            std::size_t end = first + 1;
            for (; end < sizes_.controls.size(); ++end) {
                const double wider = width + controlSpacing + sizes_.controls[end].width();
                if (wider > most) {
                    break;
                }
                width = wider;
            }
            bottom += rowSpacing;
            bottom += layRow(std::span(sizes_.controls).subspan(first, end - first), width, bottom);
            first = end;
        }
        return std::max(bottom, top);
    }

    /// Gives its height.
    double layRow(std::span<const QSizeF> sizes, double width, double top) {
        double height = controlHeight;
        for (const QSizeF& size : sizes) {
            height = std::max(height, size.height());
        }
        double x = std::round((window_.width() - width) / 2);
        for (const QSizeF& size : sizes) {
            layout_.controls.emplace_back(x, top + std::round((height - size.height()) / 2), size.width(),
                                          size.height());
            x += size.width() + controlSpacing;
        }
        return height;
    }

    /// Pinned to the pet's foot, side by side.
    void layTags() {
        const QSizeF tag = content_.tag.empty() ? QSizeF() : sizes_.tag;
        const QSizeF chip = content_.streak ? sizes_.chip : QSizeF();
        const double gap = tag.isEmpty() || chip.isEmpty() ? 0 : tagGap;
        const double y = layout_.pet.bottom() - tagBelowPet * layout_.pet.height();
        double x = (window_.width() - tag.width() - gap - chip.width()) / 2;
        layout_.tag = {QPointF(x, y - tag.height() / 2), tag};
        x += tag.width() + gap;
        layout_.chip = {QPointF(x, y - chip.height() / 2), chip};
    }

    const BreakContent& content_;
    const BreakSizes& sizes_;
    QSizeF window_;
    const Appearance& appearance_;
    BreakLayout layout_;
    Squeeze squeeze_ = squeezes.front();
    double barBottom_ = 0;
};

} // namespace

QRect WordBlock::reach() const {
    return place.toAlignedRect().adjusted(-wordsReach, -wordsReach, wordsReach, wordsReach);
}

double largestText(const QSizeF& window) {
    return std::max(1.0,
                    std::min(window.width() / roomForText.width(), window.height() / roomForText.height()));
}

TextStyle footerStyle(bool isHint) {
    return {.token = TypeToken::body,
            .ink = isHint ? Role::onSelected : Role::textMuted,
            .alignment = Qt::AlignCenter,
            .mostLines = 2,
            .weight = isHint ? std::optional(QFont::Bold) : std::nullopt};
}

QRectF hintCapsule(const WordBlock& footer, const Appearance& appearance) {
    const double words = measureText(footer.text, footer.style, footer.place.width(), appearance).width();
    QRectF capsule = footer.place;
    capsule.setWidth(
        std::min(std::ceil(words) + 2 * capsulePadding, footer.place.width() + 2 * capsulePadding));
    capsule.moveCenter(footer.place.center());
    return capsule;
}

BreakLayout layoutBreak(const BreakContent& content, const BreakSizes& sizes, const QSizeF& window,
                        const Appearance& appearance) {
    return Layouter(content, sizes, window, appearance).lay();
}

} // namespace quietlark
