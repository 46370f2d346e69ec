#include "framework/ImageList.h"

#include <QHash>
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
    const int width = image.width();
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            if ((line[x] & 0xFFFFFFu) == kTransparentColour) {
                line[x] = qRgba(0, 0, 0, 0);
            }
        }
    }
    return image;
}

// Decoded strips by resource. QImage needs no application object, so the
// cache may outlive it.
QImage CachedStrip(const QString& resource) {
    static QHash<QString, QImage> strips;
    const auto found = strips.constFind(resource);
    if (found != strips.constEnd()) return *found;
    const QImage strip = LoadWithTransparency(resource);
    strips.insert(resource, strip);
    return strip;
}

}  // namespace

ImageList::ImageList(const QString& resource, int cellSize) : m_cellSize(cellSize) {
    const QImage strip = CachedStrip(resource);
    if (!strip.isNull() && cellSize > 0 && strip.height() >= cellSize) m_strip = strip;
}

ImageList ImageList::TreeImages() {
    return ImageList(QStringLiteral(":/pictures/132.bmp"), kTreeCellSize);
}

ImageList ImageList::PageIcons() {
    return ImageList(QStringLiteral(":/pictures/1022.bmp"), kPageIconCellSize);
}

int ImageList::Count() const { return m_strip.isNull() ? 0 : m_strip.width() / m_cellSize; }

int ImageList::CellSize() const { return m_cellSize; }

QPixmap ImageList::Pixmap(int index) const {
    if (index < 0 || index >= Count()) {
        return QPixmap();
    }
    return QPixmap::fromImage(m_strip.copy(index * m_cellSize, 0, m_cellSize, m_cellSize));
}

QIcon ImageList::Icon(int index) const {
    const auto cached = m_icons.constFind(index);
    if (cached != m_icons.constEnd()) return *cached;
    QIcon icon;
    const QPixmap picture = Pixmap(index);
    if (!picture.isNull()) {
        // The same picture serves selected and not selected: no tint.
        icon.addPixmap(picture, QIcon::Normal);
        icon.addPixmap(picture, QIcon::Selected);
    }
    m_icons.insert(index, icon);
    return icon;
}
