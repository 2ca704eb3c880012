#include "Quietlark/Theme/TextLayout.h"

#include "WumbleCore/Life/Vocabulary.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace quietlark {

namespace {

/// Air between lines, in parts of the size of the type: display type is set solid.
constexpr double bodyLeading = 0.15;
/// How much narrower a paragraph may become for its last line to get company.
constexpr double narrowestForCompany = 0.7;
constexpr int balancingSteps = 7;
/// Edges of letters are soft, so that a clip right at the edge would shave them.
constexpr double softEdge = 1;

Qt::LayoutDirection directionOf(const QString& text) {
    return text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

Qt::Alignment visualAlignment(Qt::Alignment alignment, Qt::LayoutDirection direction) {
    return QStyle::visualAlignment(direction, alignment) & Qt::AlignHorizontal_Mask;
}

struct Lines {
    int count = 0;
    double widest = 0;
    double height = 0;
    bool endsInLoneWord = false;
    bool cutOff = false;
};

/// A text set at one width after the other.
class Setting {
public:
    Setting(const QString& text, const TextStyle& style, const Appearance& appearance)
        : font_(font(style.token, appearance, style.weight)), mostLines_(std::max(1, style.mostLines)),
          leading_(leading(style.token)), text_(inLines(text)), layout_(text_, font_) {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        option.setTextDirection(directionOf(text_));
        option.setAlignment(visualAlignment(style.alignment, directionOf(text_)));
        layout_.setTextOption(option);
    }

    /// Sets at most `mostLines` lines that fit the height, the first in any case.
    Lines set(double width, double height) {
        setAll(width, height);
        if (lines_.cutOff) {
            elide(width, height);
        }
        return lines_;
    }

    /// As `set`, at the narrowest width that needs no line more.
    Lines balance(double width, double height) {
        if (set(width, height).count < 2 || lines_.cutOff) {
            return lines_;
        }
        double tooNarrow = 0;
        double enough = width;
        const int count = lines_.count;
        for (int step = 0; step < balancingSteps; ++step) {
            const double middle = (tooNarrow + enough) / 2;
            (setAll(middle, height).count > count || lines_.cutOff ? tooNarrow : enough) = middle;
        }
        return set(std::ceil(enough), height);
    }

    /// As `set`, a little narrower where that keeps the last word from standing alone.
    Lines keepCompany(double width, double height) {
        const Lines wide = set(width, height);
        if (!wide.endsInLoneWord || wide.cutOff) {
            return wide;
        }
        for (double share = 0.95; share >= narrowestForCompany; share -= 0.05) {
            if (const Lines narrower = setAll(width * share, height);
                !narrower.endsInLoneWord && !narrower.cutOff && narrower.count == wide.count) {
                return narrower;
            }
        }
        return set(width, height);
    }

    void draw(QPainter& painter, QPointF at) const {
        for (int place = 0; place < lines_.count; ++place) {
            layout_.lineAt(place).draw(&painter, at);
        }
    }

    /// The width that the lines were set at last: they are aligned within it.
    double width() const { return width_; }

private:
    static double leading(TypeToken token) {
        const auto& row = wumble::rowOf(typeScale, token);
        return row.typeface == Typeface::display ? 0 : bodyLeading * row.size;
    }

    QString inLines(const QString& text) const {
        QString lines = mostLines_ == 1 ? text.simplified() : text.trimmed();
        return lines.replace(u'\n', QChar(QChar::LineSeparator));
    }

    const Lines& setAll(double width, double height) {
        width_ = width;
        lines_ = {};
        layout_.beginLayout();
        for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
            line.setLineWidth(width);
            const double top = lines_.count == 0 ? 0 : lines_.height + leading_;
            const bool isRoom = lines_.count < mostLines_ && top + line.height() <= height + 0.5;
            if (lines_.count > 0 && !isRoom) {
                lines_.cutOff = true;
                break;
            }
            line.setPosition({0, top});
            take(line, top);
        }
        layout_.endLayout();
        return lines_;
    }

    void take(const QTextLine& line, double top) {
        ++lines_.count;
        lines_.height = top + line.height();
        lines_.widest = std::max(lines_.widest, line.naturalTextWidth());
        const QString words = text_.mid(line.textStart(), line.textLength()).trimmed();
        lines_.endsInLoneWord = lines_.count > 1 && !words.contains(u' ');
    }

    /// Ends the last line that has room in an ellipsis.
    void elide(double width, double height) {
        const QTextLine last = layout_.lineAt(lines_.count - 1);
        const int start = last.textStart();
        QString rest = text_.mid(start);
        rest.replace(QChar(QChar::LineSeparator), u' ');
        const QString whole = text_;
        const int room = static_cast<int>(std::floor(width));
        text_ = text_.left(start) + QFontMetricsF(font_).elidedText(rest, Qt::ElideRight, room);
        layout_.setText(text_);
        setAll(width, height);
        lines_.cutOff = true;
        text_ = whole;
    }

    QFont font_;
    int mostLines_;
    double leading_;
    QString text_;
    QTextLayout layout_;
    Lines lines_;
    double width_ = 0;
};

Lines setText(Setting& setting, const TextStyle& style, double width, double height) {
    return style.balanced ? setting.balance(width, height) : setting.keepCompany(width, height);
}

/// Where lines that were set narrower than the rectangle begin in it.
double roomBeside(double room, Qt::Alignment visual) {
    if (visual.testFlag(Qt::AlignHCenter)) {
        return room / 2;
    }
    return visual.testFlag(Qt::AlignRight) ? room : 0;
}

double roomAbove(double room, Qt::Alignment alignment) {
    if (alignment.testFlag(Qt::AlignVCenter)) {
        return room / 2;
    }
    return alignment.testFlag(Qt::AlignBottom) ? room : 0;
}

constexpr double anyHeight = 1e6;

} // namespace

QSizeF measureText(const QString& text, const TextStyle& style, double width, const Appearance& appearance) {
    Setting setting(text, style, appearance);
    const Lines lines = setText(setting, style, std::max(0.0, width), anyHeight);
    return {std::min(std::ceil(lines.widest), std::max(0.0, width)), std::ceil(lines.height)};
}

void drawText(QPainter& painter, const QRectF& rect, const QString& text, const TextStyle& style,
              const Appearance& appearance) {
    drawText(painter, rect, text, style, colour(style.ink, appearance), appearance);
}

void drawText(QPainter& painter, const QRectF& rect, const QString& text, const TextStyle& style,
              const QColor& ink, const Appearance& appearance) {
    if (rect.isEmpty() || text.isEmpty()) {
        return;
    }
    Setting setting(text, style, appearance);
    const Lines lines = setText(setting, style, rect.width(), rect.height());
    const Qt::Alignment visual = visualAlignment(style.alignment, directionOf(text));
    const QPointF at{roomBeside(rect.width() - setting.width(), visual),
                     roomAbove(rect.height() - lines.height, style.alignment)};
    painter.save();
    painter.setClipRect(rect.adjusted(-softEdge, -softEdge, softEdge, softEdge), Qt::IntersectClip);
    painter.setPen(ink);
    setting.draw(painter, rect.topLeft() + at);
    painter.restore();
}

QString firstThatFits(const QStringList& alternatives, const TextStyle& style, double width,
                      const Appearance& appearance) {
    for (const QString& words : alternatives) {
        if (!Setting(words, style, appearance).set(width, anyHeight).cutOff) {
            return words;
        }
    }
    return alternatives.isEmpty() ? QString() : alternatives.back();
}

} // namespace quietlark
