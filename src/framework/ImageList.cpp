#include "framework/ImageList.h"

#include <QImage>
#include <QRgb>

namespace {

constexpr QRgb kTransparentColour = 0xFF00FF;

// The strip with every pixel of the transparent colour made fully transparent.
QImage LoadWithTransparency(const QString& resource) {
    QImage image(resource);
    if (image.isNull()) {
        return image;
    }
    image = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if ((line[x] & 0xFFFFFFu) == kTransparentColour) {
                line[x] = qRgba(0, 0, 0, 0);
            }
        }
    }
    return image;
}

}  // namespace

ImageList::ImageList(const QString& resource, int cellSize) : m_cellSize(cellSize) {
    const QImage strip = LoadWithTransparency(resource);
    if (strip.isNull() || cellSize <= 0 || strip.height() < cellSize) {
        return;
    }
    const int count = strip.width() / cellSize;
    for (int index = 0; index < count; ++index) {
        m_pictures.append(QPixmap::fromImage(strip.copy(index * cellSize, 0, cellSize, cellSize)));
    }
}

ImageList ImageList::TreeImages() {
    return ImageList(QStringLiteral(":/pictures/132.bmp"), kTreeCellSize);
}

ImageList ImageList::PageIcons() {
    return ImageList(QStringLiteral(":/pictures/1022.bmp"), kPageIconCellSize);
}

int ImageList::Count() const {
    return static_cast<int>(m_pictures.size());
}

int ImageList::CellSize() const {
    return m_cellSize;
}

QPixmap ImageList::Pixmap(int index) const {
    if (index < 0 || index >= Count()) {
        return QPixmap();
    }
    return m_pictures.at(index);
}

QIcon ImageList::Icon(int index) const {
    QIcon icon;
    const QPixmap picture = Pixmap(index);
    if (!picture.isNull()) {
        // The same picture serves selected and not selected: no tint.
        icon.addPixmap(picture, QIcon::Normal);
        icon.addPixmap(picture, QIcon::Selected);
    }
    return icon;
}
