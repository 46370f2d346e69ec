#include "controls/IconStatic.h"

#include <QPainter>

#include "framework/ImageList.h"

CIconStatic::CIconStatic(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::NoFocus);
}

void CIconStatic::SetImage(const ImageList* list, int index) {
    m_list = list;
    m_index = index;
    setFixedSize(kSize, kSize);
    update();
}

void CIconStatic::paintEvent(QPaintEvent*) {
    if (m_list == nullptr) {
        return;
    }
    const QPixmap picture = m_list->Pixmap(m_index);
    if (!picture.isNull()) {
        QPainter painter(this);
        painter.drawPixmap(0, 0, picture);
    }
}
