#include "platform/qt/textlines.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace vorlane {
namespace {

class TextLinesTest : public testing::Test {
protected:
    TextLine Elided(const QString& text, double width) { return ElidedLine(text, font, metrics, width); }
    QStringList Wrapped(const QString& text, double width, int count) {
        QStringList texts;
        for (const TextLine& line : WrappedLines(text, font, metrics, width, count)) texts << line.Text();
        return texts;
    }
    double WidthOf(const QString& text) const { return metrics.horizontalAdvance(text); }

    QFont font;
    QFontMetricsF metrics{font};
};

TEST_F(TextLinesTest, ALineIsAsWideAsItsText) {
    for (const QString text : {"", "a", "img_0001.jpg", "Été à la mer"}) {
        EXPECT_NEAR(TextLine(text, font).Width(), WidthOf(text), 0.1) << text.toStdString();
    }
}

TEST_F(TextLinesTest, ALineThatFitsStaysAsItIs) {
    EXPECT_EQ(Elided("img_0001.jpg", WidthOf("img_0001.jpg") + 1).Text(), "img_0001.jpg");
}

TEST_F(TextLinesTest, ALineThatIsTooLongEndsInAnEllipsis) {
    const TextLine line = Elided("a very long name of a picture.jpg", 80);
    EXPECT_TRUE(line.Text().endsWith(QChar(0x2026)));
    EXPECT_LE(line.Width(), 80);
    EXPECT_GT(line.Width(), 40);
}

TEST_F(TextLinesTest, AnElidedLineShowsBreaksAsBlanks) {
    EXPECT_EQ(Elided("a\nb", 100).Text(), "a b");
}

TEST_F(TextLinesTest, AWrappedTextBreaksAtWordsAndAtItsOwnBreaks) {
    EXPECT_EQ(Wrapped("one two three", WidthOf("one two "), 5), QStringList({"one two", "three"}));
    EXPECT_EQ(Wrapped("one\ntwo", 1000, 5), QStringList({"one", "two"}));
    EXPECT_EQ(Wrapped("one two", 1000, 5), QStringList({"one two"}));
}

TEST_F(TextLinesTest, TheLastLineThatThereIsRoomForTakesTheRest) {
    const QStringList lines = Wrapped("one two three four", WidthOf("one two "), 2);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], "one two");
    EXPECT_TRUE(lines[1].startsWith("three"));
    EXPECT_TRUE(lines[1].endsWith(QChar(0x2026)));
}

TEST_F(TextLinesTest, ALineIsPaintedAboveItsBaseLine) {
    QImage image(60, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setPen(Qt::black);
        TextLine("HH", font).Paint(painter, {10, 30});
    }
    const auto dark = [&](int y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 128) return true;
        }
        return false;
    };
    EXPECT_TRUE(dark(29));
    EXPECT_FALSE(dark(30));
    EXPECT_FALSE(dark(30 - static_cast<int>(metrics.ascent()) - 1));
}

}  // namespace
}  // namespace vorlane
