#pragma once

// A strip of square pictures cut from one bitmap resource, left to right.
// Pixels of the colour 0xFF00FF are transparent. A resource is decoded once
// per process; lists and their copies share the strip, and a picture is cut
// from it when asked for.

#include <QHash>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QString>

class ImageList {
public:
    // The resource path (for example ":/pictures/132.bmp") and the width and
    // height of one picture. A resource that cannot be read gives no pictures.
    ImageList(const QString& resource, int cellSize);

    // The 16 by 16 pictures of the page tree (bitmap 132).
    static ImageList TreeImages();
    // The 42 by 42 pictures of the pages' icon statics (bitmap 1022).
    static ImageList PageIcons();

    static constexpr int kTreeCellSize = 16;
    static constexpr int kPageIconCellSize = 42;

    int Count() const;
    int CellSize() const;
    // The index-th picture; a null pixmap for an index out of range.
    QPixmap Pixmap(int index) const;
    // The index-th picture as an icon, the same when selected; a null icon
    // for an index out of range.
    QIcon Icon(int index) const;

private:
    int m_cellSize;
    QImage m_strip;
    mutable QHash<int, QIcon> m_icons;  // made on first use
};
