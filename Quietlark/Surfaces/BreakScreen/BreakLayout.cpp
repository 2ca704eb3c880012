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
constexpr double controlHeight = 44;
constexpr double footerHeight = 32;
constexpr double smallestPet = 96;

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

TextStyle titleStyle(const TitleSize& size) {
    return {.token = size.token, .alignment = Qt::AlignHCenter, .mostLines = size.lines, .balanced = true};
}

TextStyle subtitleStyle(TypeToken token) {
    return {.token = token,
            .ink = Role::textMuted,
            .alignment = Qt::AlignHCenter,
            .mostLines = 4,
            .balanced = true};
}

TextStyle fittingTitle(const QString& text, std::span<const TitleSize> sizes, double width,
                       const Appearance& appearance) {
    for (const TitleSize& size : sizes) {
        TextStyle roomier = titleStyle(size);
        ++roomier.mostLines;
        const double height = measureText(text, titleStyle(size), width, appearance).height();
        if (measureText(text, roomier, width, appearance).height() <= height) {
            return titleStyle(size);
        }
    }
    return titleStyle(sizes.back());
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
        layBar();
        double pet = content_.petSize;
        double top = restingTop(pet);
        const double room = window_.height() - bottomMargin;
        if (const double over = layColumn(top, pet) - room; over > 0) {
            const double least = barBottom_ - pet * petAir;
            const double up = std::min(over, std::max(0.0, top - least));
            pet = std::max(smallestPet, pet - (over - up));
            layColumn(top - up, pet);
        }
        return std::move(layout_);
    }

private:
    static constexpr double petAir = 0.2; ///< of its size, above its head

    bool isPrimary() const { return content_.isPrimary; }
    double lineHeight(TypeToken token) const {
        return measureText(QStringLiteral("X"), {.token = token}, widestTitle, appearance_).height();
    }

    /// Where the pet begins on a usual break, whatever is shown now.
    double restingTop(double pet) const {
        const double words = isPrimary()
                                 ? lineHeight(TypeToken::breakTitle) + afterTitle +
                                       lineHeight(TypeToken::lead) + beforeRing + sizes_.ring.height() +
                                       beforeControls + controlHeight + beforeFooter + footerHeight
                                 : lineHeight(TypeToken::numeral);
        const double whole = pet + afterPet + words;
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
        layout_.clock = {
            .place = {middle - width / 2, topMargin + (height - clock.height()) / 2, width, clock.height()},
            .text = text,
            .style = style,
            .order = order::footer};
        // The clock stays in the middle when the button goes.
        const double left =
            clock.isEmpty() ? middle - lock.width() / 2 : layout_.clock.place.right() + lockGap;
        layout_.lock = {QPointF(std::round(left), topMargin + (height - lock.height()) / 2), lock};
        barBottom_ = topMargin + height + barGap;
    }

    /// Gives its lower end.
    double layColumn(double top, double pet) {
        layout_.words.clear();
        Column column(window_, appearance_, top);
        layout_.pet = column.place({pet, pet});
        const bool isTagged = !content_.tag.empty() || content_.streak;
        layTags();
        column.skip(isTagged ? afterPetTagged : afterPet);
        layWords(column);
        if (content_.ring) {
            column.skip(beforeRing);
            layout_.ring = column.place(sizes_.ring);
        }
        if (content_.showsDots) {
            column.skip(beforeDots);
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
            const auto style = fittingTitle(text, sizes, column.widthFor(widestTitle), appearance_);
            layout_.words.push_back(column.words(text, style, widestTitle, order::title));
        }
        if (!content_.subtitle.empty()) {
            column.skip(afterTitle);
            const auto style = subtitleStyle(isPrimary() ? TypeToken::lead : TypeToken::body);
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
        column.skip(beforeControls);
        layControls(column.bottom());
        column.skip(std::max(controlHeight, tallestControl()));
        column.skip(beforeFooter);
        const auto style = footerStyle(content_.footerIsHint);
        const auto text = QString::fromStdString(content_.footer);
        const double height = std::max(footerHeight, lineHeight(style.token) + 8);
        const double width = column.widthFor(widestTitle);
        layout_.footer = {
            .place = column.place({width, height}), .text = text, .style = style, .order = order::footer};
    }

    double tallestControl() const {
        double tallest = 0;
        for (const QSizeF& size : sizes_.controls) {
            tallest = std::max(tallest, size.height());
        }
        return tallest;
    }

    void layControls(double top) {
        const double row = std::max(controlHeight, tallestControl());
        double width = -controlSpacing;
        for (const QSizeF& size : sizes_.controls) {
            width += size.width() + controlSpacing;
        }
        double x = std::round((window_.width() - width) / 2);
        layout_.controls.clear();
        for (const QSizeF& size : sizes_.controls) {
            layout_.controls.emplace_back(x, top + std::round((row - size.height()) / 2), size.width(),
                                          size.height());
            x += size.width() + controlSpacing;
        }
        layout_.confetti = {0, 0, window_.width(), top + shelf};
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
    double barBottom_ = 0;
};

} // namespace

QRect WordBlock::reach() const {
    return place.toAlignedRect().adjusted(-wordsReach, -wordsReach, wordsReach, wordsReach);
}

TextStyle footerStyle(bool isHint) {
    return {.token = TypeToken::body,
            .ink = isHint ? Role::onSelected : Role::textMuted,
            .alignment = Qt::AlignCenter,
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
