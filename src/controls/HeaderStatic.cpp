#include "controls/HeaderStatic.h"

#include <QFont>
#include <QPainter>

CHeaderStatic::CHeaderStatic(QWidget* parent) : QWidget(parent) {}

void CHeaderStatic::SetText(const QString& text) {
    m_text = text;
    repaint();
}

void CHeaderStatic::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // Read at each paint: a palette or style change (the system's colours
    // changed) repaints the widget, and the new colour shows.
    painter.fillRect(rect(), palette().color(QPalette::Dark));
    if (m_text.isEmpty()) {
        return;
    }
    QFont bold = font();
    bold.setWeight(QFont::Bold);
    painter.setFont(bold);
    painter.setPen(Qt::white);
    const QRect textArea = rect().adjusted(kTextIndent, 0, 0, 0);
    painter.drawText(textArea, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, m_text);
}
