#include "controls/IconStatic.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QTest>
#include <QVBoxLayout>

#include "framework/ImageList.h"

namespace {

QImage GrabWithAlpha(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

class IconStaticTest : public testing::Test {
protected:
    // What a 42 by 42 icon static shows: its empty background with the
    // picture drawn over it.
    QImage Expected(int index) {
        CIconStatic blank;
        blank.setFixedSize(CIconStatic::kSize, CIconStatic::kSize);
        QImage image = GrabWithAlpha(blank);
        QPainter painter(&image);
        painter.drawPixmap(0, 0, icons.Pixmap(index));
        return image;
    }

    ImageList icons = ImageList::PageIcons();
    CIconStatic icon;
};

}  // namespace

TEST_F(IconStaticTest, SetImageMakesItFortyTwoByFortyTwo) {
    icon.resize(120, 20);
    icon.SetImage(&icons, 13);
    EXPECT_EQ(icon.size(), QSize(42, 42));
    EXPECT_EQ(icon.List(), &icons);
    EXPECT_EQ(icon.Index(), 13);
}

TEST_F(IconStaticTest, DrawsTheChosenPictureAtTheOrigin) {
    icon.SetImage(&icons, 13);
    EXPECT_EQ(GrabWithAlpha(icon), Expected(13));
}

TEST_F(IconStaticTest, TransparentPixelsShowTheBackground) {
    icon.SetImage(&icons, 13);
    const QImage shown = GrabWithAlpha(icon);
    const QImage picture = icons.Pixmap(13).toImage().convertToFormat(QImage::Format_ARGB32);
    CIconStatic blank;
    blank.setFixedSize(42, 42);
    const QRgb background = GrabWithAlpha(blank).pixel(0, 0);
    int transparent = 0;
    int drawn = 0;
    for (int y = 0; y < 42; ++y) {
        for (int x = 0; x < 42; ++x) {
            if (qAlpha(picture.pixel(x, y)) == 0) {
                ++transparent;
                ASSERT_EQ(shown.pixel(x, y), background) << x << "," << y;
            } else {
                ++drawn;
                ASSERT_EQ(shown.pixel(x, y), picture.pixel(x, y)) << x << "," << y;
            }
        }
    }
    EXPECT_GT(transparent, 0);
    EXPECT_GT(drawn, 0);
}

TEST_F(IconStaticTest, ChangesWhenAnotherPictureIsSet) {
    icon.SetImage(&icons, 13);
    const QImage before = GrabWithAlpha(icon);
    icon.SetImage(&icons, 14);
    const QImage after = GrabWithAlpha(icon);
    EXPECT_NE(before, after);
    EXPECT_EQ(after, Expected(14));
    EXPECT_EQ(icon.Index(), 14);
}

TEST_F(IconStaticTest, DrawsTheListItIsGiven) {
    const ImageList tree = ImageList::TreeImages();
    icon.SetImage(&tree, 3);
    const QImage shown = GrabWithAlpha(icon);
    const QImage picture = tree.Pixmap(3).toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            if (qAlpha(picture.pixel(x, y)) == 255) {
                ASSERT_EQ(shown.pixel(x, y), picture.pixel(x, y)) << x << "," << y;
            }
        }
    }
}

TEST_F(IconStaticTest, IndexOutOfRangeDrawsNothing) {
    icon.SetImage(&icons, icons.Count());
    EXPECT_EQ(GrabWithAlpha(icon), Expected(-1));
}

TEST_F(IconStaticTest, TextHasNoEffect) {
    icon.SetImage(&icons, 2);
    const QImage before = GrabWithAlpha(icon);
    icon.setProperty("text", QStringLiteral("1021"));
    icon.setWindowTitle(QStringLiteral("1021"));
    EXPECT_EQ(GrabWithAlpha(icon), before);
}

TEST_F(IconStaticTest, TakesNoKeyboardFocus) {
    EXPECT_EQ(icon.focusPolicy(), Qt::NoFocus);

    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* first = new QLineEdit(&window);
    auto* picture = new CIconStatic(&window);
    auto* second = new QLineEdit(&window);
    layout->addWidget(first);
    layout->addWidget(picture);
    layout->addWidget(second);
    picture->SetImage(&icons, 0);
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    EXPECT_TRUE(second->hasFocus());
    EXPECT_FALSE(picture->hasFocus());
}
