#include "controls/HeaderStatic.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QImage>
#include <QPalette>
#include <QTest>

namespace {

const QColor kDark(64, 64, 64);

QImage Grab(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// Pixels of the text: much brighter than the dark background.
bool IsText(QRgb pixel) {
    return qRed(pixel) > 160 && qGreen(pixel) > 160 && qBlue(pixel) > 160;
}

// The smallest rectangle holding every text pixel; empty when there is none.
QRect TextBounds(const QImage& image) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (IsText(image.pixel(x, y))) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

int CountPure(const QImage& image, QRgb colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += (image.pixel(x, y) & 0xFFFFFFu) == (colour & 0xFFFFFFu) ? 1 : 0;
        }
    }
    return count;
}

class HeaderStaticTest : public testing::Test {
protected:
    HeaderStaticTest() {
        QPalette palette = header.palette();
        palette.setColor(QPalette::Dark, kDark);
        header.setPalette(palette);
        header.resize(400, 26);
    }

    CHeaderStatic header;
};

// Counts the paint events a widget receives.
class PaintCounter : public QObject {
public:
    int paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++paints;
        }
        return false;
    }
};

}  // namespace

TEST(HeaderStatic, BackgroundIsThePalettesDarkColour) {
    CHeaderStatic plain;
    plain.resize(200, 26);
    const QColor dark = plain.palette().color(QPalette::Dark);
    const QImage image = Grab(plain);
    EXPECT_EQ(CountPure(image, dark.rgb()), 200 * 26);
}

TEST_F(HeaderStaticTest, NoTextBeforeSetText) {
    const QImage image = Grab(header);
    EXPECT_EQ(CountPure(image, kDark.rgb()), 400 * 26);
    EXPECT_TRUE(TextBounds(image).isEmpty());
    EXPECT_TRUE(header.Text().isEmpty());
}

TEST_F(HeaderStaticTest, SetTextShowsWhiteTextFromFivePixelsIn) {
    header.SetText(QStringLiteral("System scan"));
    EXPECT_EQ(header.Text(), "System scan");
    const QImage image = Grab(header);
    EXPECT_GT(CountPure(image, qRgb(255, 255, 255)), 20);
    const QRect text = TextBounds(image);
    ASSERT_FALSE(text.isEmpty());
    EXPECT_GE(text.left(), 5);
    EXPECT_LE(text.left(), 8);
}

TEST_F(HeaderStaticTest, TextIsCentredVertically) {
    header.resize(400, 40);
    header.SetText(QStringLiteral("HEADER"));
    const QRect text = TextBounds(Grab(header));
    ASSERT_FALSE(text.isEmpty());
    const int above = text.top();
    const int below = 40 - 1 - text.bottom();
    EXPECT_LE(std::abs(above - below), 3) << above << " above, " << below << " below";
}

TEST_F(HeaderStaticTest, TextIsBold) {
    const QString title = QStringLiteral("Security configuration");
    header.SetText(title);
    const QRect text = TextBounds(Grab(header));
    QFont bold = header.font();
    bold.setWeight(QFont::Bold);
    const int boldWidth = QFontMetrics(bold).boundingRect(title).width();
    const int normalWidth = QFontMetrics(header.font()).boundingRect(title).width();
    ASSERT_GT(boldWidth - normalWidth, 6);
    EXPECT_LE(std::abs(text.width() - boldWidth), 3) << text.width() << " drawn, " << boldWidth
                                                     << " bold";
}

TEST_F(HeaderStaticTest, PaletteChangeIsHonoured) {
    header.SetText(QStringLiteral("Easy Configuration"));
    const QColor green(20, 110, 40);
    QPalette palette = header.palette();
    palette.setColor(QPalette::Dark, green);
    header.setPalette(palette);
    const QImage image = Grab(header);
    EXPECT_EQ(image.pixel(2, 2), green.rgb());
    EXPECT_EQ(image.pixel(399, 25), green.rgb());
    EXPECT_EQ(CountPure(image, kDark.rgb()), 0);
    EXPECT_FALSE(TextBounds(image).isEmpty());
}

TEST_F(HeaderStaticTest, SetTextRepaintsAtOnce) {
    header.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&header));
    QCoreApplication::processEvents();
    PaintCounter counter;
    header.installEventFilter(&counter);
    header.SetText(QStringLiteral("Scheduled scan"));
    EXPECT_GE(counter.paints, 1);
    header.removeEventFilter(&counter);
}
