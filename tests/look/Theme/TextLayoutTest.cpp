#include "Quietlark/Theme/TextLayout.h"

#include "tests/look/Drawn.h"

#include <QFontMetricsF>
#include <QPainter>
#include <gtest/gtest.h>

namespace quietlark {
namespace {

const QList<QString>& nastyTexts() {
    static const QList<QString> texts{
        QStringLiteral("Rest your eyes"),
        QString(200, u'W'),
        QStringLiteral("Donaudampfschifffahrtsgesellschaftskapitänsmützenabzeichen"),
        QStringLiteral(
            "Z\u0335\u0321\u0327\u0328\u031b\u0353a\u0337\u0322\u0359\u0300\u0301\u0302\u0303\u0304"
            "\u0306\u0307l\u0334go"),
        QStringLiteral("عنوان طويل جدا لا يتسع في هذا المكان الضيق أبدا"),
        QStringLiteral("\U0001F469\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466\U0001F3F3\uFE0F\u200D"
                       "\U0001F308 family"),
        QStringLiteral("長い日本語のテキストは単語の間に空白がない"),
        QStringLiteral("a\nb\r\nc\td\u2028e\u2029f"),
        QStringLiteral("\u202Eturned around"),
        QString(QChar(0xD800)) + QStringLiteral("half a pair"),
        QString(u'\0'),
        QStringLiteral("     "),
    };
    return texts;
}

QImage paper(int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage written(const QString& text, const QRectF& rect, const TextStyle& style,
               const Appearance& appearance) {
    QImage image = paper(320, 200);
    QPainter painter(&image);
    drawText(painter, rect, text, style, appearance);
    return image;
}

TEST(TextLayout, nothingIsEverDrawnOutsideTheRectangle) {
    for (const QRect rect : {QRect(100, 60, 120, 60), QRect(100, 60, 30, 20), QRect(100, 60, 3, 100)}) {
        for (const double scale : {1.0, 1.5}) {
            for (const bool balanced : {false, true}) {
                for (const QString& text : nastyTexts()) {
                    const TextStyle style{
                        .token = TypeToken::title, .mostLines = balanced ? 3 : 1, .balanced = balanced};
                    const QRect drawn = test::inked(written(text, rect, style, {.textScale = scale}));
                    EXPECT_TRUE(drawn.isEmpty() || rect.adjusted(-1, -1, 1, 1).contains(drawn))
                        << text.toStdString();
                }
            }
        }
    }
}

TEST(TextLayout, theMeasureIsNoWiderThanAskedAndHoldsAllTheLines) {
    for (const QString& text : nastyTexts()) {
        const TextStyle style{.mostLines = 40};
        const QSizeF size = measureText(text, style, 150, {});
        EXPECT_LE(size.width(), 150) << text.toStdString();
        QImage exact = written(text, QRectF({10, 10}, QSizeF(150, size.height())), style, {});
        QImage roomy = written(text, QRectF({10, 10}, QSizeF(150, 190)), style, {});
        if (size.height() < 190) {
            EXPECT_LT(test::difference(exact, roomy), 0.02) << text.toStdString();
        }
    }
}

TEST(TextLayout, onlyWhatIsTooLongIsCutOff) {
    const QStringList words{QStringLiteral("Don't wait for the call this time"), QStringLiteral("Don't wait"),
                            QStringLiteral("Go")};
    const auto width = [&](int place) { return measureText(words[place], {}, 1000, {}).width(); };
    EXPECT_EQ(firstThatFits(words, {}, width(0) + 1, {}), words[0]);
    EXPECT_EQ(firstThatFits(words, {}, width(0) - 1, {}), words[1]);
    EXPECT_EQ(firstThatFits(words, {}, 1, {}), words[2]);
    EXPECT_TRUE(firstThatFits({}, {}, 100, {}).isEmpty());
}

/// The widths of the inked lines of a text, from the top.
QList<int> lineWidths(const QImage& image) {
    QList<int> widths;
    QRect line;
    for (int y = 0; y < image.height(); ++y) {
        const QRect row = test::inked(image.copy(0, y, image.width(), 1));
        if (!row.isEmpty()) {
            line |= row;
        } else if (!line.isEmpty()) {
            widths.append(line.width());
            line = {};
        }
    }
    return widths;
}

TEST(TextLayout, aBalancedTitleHasLinesOfAboutOneLength) {
    const TextStyle title{.token = TypeToken::title, .mostLines = 3, .balanced = true};
    const auto widths = lineWidths(
        written(QStringLiteral("LOOK AT SOMETHING FAR AWAY NOW"), QRectF(10, 10, 300, 120), title, {}));
    ASSERT_EQ(widths.size(), 2);
    EXPECT_GT(widths[1], widths[0] * 0.6);
}

TEST(TextLayout, theLastLineIsNeverALoneWordIfThatCanBeHelped) {
    const QString words = QStringLiteral("LOOK OUT OF THE WINDOW FOR A LITTLE WHILE");
    const double all = measureText(words, {}, 1000, {}).width();
    const auto widths = lineWidths(written(words, QRectF(10, 10, all - 10, 120), {.mostLines = 3}, {}));
    ASSERT_EQ(widths.size(), 2);
    EXPECT_GT(widths[1], measureText(QStringLiteral("WHILE"), {}, 1000, {}).width() + 5);
}

TEST(TextLayout, aTextBeginsWhereItsScriptBegins) {
    const QRectF rect(10, 10, 300, 40);
    const auto hebrew = test::inked(written(QStringLiteral("שלום"), rect, {}, {}));
    const auto english = test::inked(written(QStringLiteral("Peace"), rect, {}, {}));
    EXPECT_GT(hebrew.left(), 200);
    EXPECT_LT(english.left(), 20);
}

} // namespace
} // namespace quietlark
