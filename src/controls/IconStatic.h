#pragma once

// One picture of a shared image list, as a small static control: a page
// holds one per group box and chooses its picture in SetIcons. It takes no
// keyboard focus, and text given to it (a form may set some) is not shown.

#include <QWidget>

class ImageList;

class CIconStatic : public QWidget {
    Q_OBJECT

public:
    explicit CIconStatic(QWidget* parent = nullptr);

    static constexpr int kSize = 42;

    // Shows the index-th picture of the list, which the caller keeps alive.
    // The control becomes 42 by 42 pixels and repaints.
    void SetImage(const ImageList* list, int index);

    const ImageList* List() const { return m_list; }
    int Index() const { return m_index; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const ImageList* m_list = nullptr;
    int m_index = -1;
};
