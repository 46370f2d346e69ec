#include "framework/ImageList.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QSet>

namespace {

constexpr QRgb kMagenta = 0xFF00FF;

// The source strip as stored, without transparency.
QImage Strip(const char* resource) {
    return QImage(QString::fromLatin1(resource)).convertToFormat(QImage::Format_RGB32);
}

// Checks every pixel of every picture against the strip: magenta pixels are
// transparent, all others opaque and of their own colour.
void ExpectPicturesMatchStrip(const ImageList& list, const QImage& strip) {
    const int size = list.CellSize();
    for (int index = 0; index < list.Count(); ++index) {
        const QImage picture = list.Pixmap(index).toImage().convertToFormat(QImage::Format_ARGB32);
        ASSERT_EQ(picture.size(), QSize(size, size)) << "picture " << index;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const QRgb source = strip.pixel(index * size + x, y) & 0xFFFFFFu;
                const QRgb shown = picture.pixel(x, y);
                if (source == kMagenta) {
                    ASSERT_EQ(qAlpha(shown), 0) << "picture " << index << " at " << x << "," << y;
                } else {
                    ASSERT_EQ(qAlpha(shown), 255) << "picture " << index << " at " << x << "," << y;
                    ASSERT_EQ(shown & 0xFFFFFFu, source) << "picture " << index;
                }
            }
        }
    }
}

int CountOpaque(const QPixmap& picture) {
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    int opaque = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            opaque += qAlpha(image.pixel(x, y)) == 255 ? 1 : 0;
        }
    }
    return opaque;
}

}  // namespace

TEST(ImageList, TreeImagesAreSixteenBySixteenAndCoverEveryTreeIndex) {
    const ImageList list = ImageList::TreeImages();
    EXPECT_EQ(list.CellSize(), 16);
    EXPECT_GE(list.Count(), 12);
    EXPECT_EQ(list.Count(), Strip(":/pictures/132.bmp").width() / 16);
}

TEST(ImageList, PageIconsAreFortyTwoByFortyTwoAndCoverEveryPageIndex) {
    const ImageList list = ImageList::PageIcons();
    EXPECT_EQ(list.CellSize(), 42);
    EXPECT_GE(list.Count(), 26);
    EXPECT_EQ(list.Count(), Strip(":/pictures/1022.bmp").width() / 42);
}

TEST(ImageList, StripsAreStoredWithTheirGridHeight) {
    EXPECT_EQ(Strip(":/pictures/132.bmp").height(), 16);
    EXPECT_EQ(Strip(":/pictures/1022.bmp").height(), 42);
}

TEST(ImageList, MagentaIsTransparentAndEveryOtherPixelKeepsItsColour) {
    ExpectPicturesMatchStrip(ImageList::TreeImages(), Strip(":/pictures/132.bmp"));
    ExpectPicturesMatchStrip(ImageList::PageIcons(), Strip(":/pictures/1022.bmp"));
}

TEST(ImageList, EveryPictureHasADrawingOnATransparentGround) {
    for (const ImageList& list : {ImageList::TreeImages(), ImageList::PageIcons()}) {
        const int area = list.CellSize() * list.CellSize();
        for (int index = 0; index < list.Count(); ++index) {
            const int opaque = CountOpaque(list.Pixmap(index));
            EXPECT_GT(opaque, area / 8) << "picture " << index;
            EXPECT_LT(opaque, area) << "picture " << index;
        }
    }
}

TEST(ImageList, EveryPictureIsDifferent) {
    for (const ImageList& list : {ImageList::TreeImages(), ImageList::PageIcons()}) {
        QSet<QByteArray> seen;
        for (int index = 0; index < list.Count(); ++index) {
            const QImage image = list.Pixmap(index).toImage().convertToFormat(QImage::Format_ARGB32);
            const QByteArray bytes(reinterpret_cast<const char*>(image.constBits()),
                                   static_cast<qsizetype>(image.sizeInBytes()));
            EXPECT_FALSE(seen.contains(bytes)) << "picture " << index;
            seen.insert(bytes);
        }
    }
}

TEST(ImageList, IndexOutOfRangeGivesNullPictures) {
    const ImageList list = ImageList::PageIcons();
    EXPECT_TRUE(list.Pixmap(-1).isNull());
    EXPECT_TRUE(list.Pixmap(list.Count()).isNull());
    EXPECT_TRUE(list.Icon(-1).isNull());
    EXPECT_TRUE(list.Icon(list.Count()).isNull());
    EXPECT_FALSE(list.Pixmap(list.Count() - 1).isNull());
}

TEST(ImageList, MissingResourceGivesNoPictures) {
    const ImageList list(QStringLiteral(":/pictures/none.bmp"), 16);
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.CellSize(), 16);
    EXPECT_TRUE(list.Pixmap(0).isNull());
}

TEST(ImageList, CopiesShowTheSamePictures) {
    const ImageList original = ImageList::TreeImages();
    const ImageList copy = original;
    ASSERT_EQ(copy.Count(), original.Count());
    EXPECT_EQ(copy.Pixmap(3).toImage(), original.Pixmap(3).toImage());
}

TEST(ImageList, IconIsThePictureSelectedOrNot) {
    const ImageList list = ImageList::TreeImages();
    const QIcon icon = list.Icon(5);
    const QImage picture = list.Pixmap(5).toImage().convertToFormat(QImage::Format_ARGB32);
    const QSize size(16, 16);
    EXPECT_EQ(icon.pixmap(size, QIcon::Normal).toImage().convertToFormat(QImage::Format_ARGB32),
              picture);
    EXPECT_EQ(icon.pixmap(size, QIcon::Selected).toImage().convertToFormat(QImage::Format_ARGB32),
              picture);
}
