#include "controls/NumberSpin.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdint>

#include "text/GroupedText.h"

CNumberSpin::CNumberSpin(QWidget* parent) : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(MakeArrow(Qt::UpArrow, 1));
    layout->addWidget(MakeArrow(Qt::DownArrow, -1));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

QToolButton* CNumberSpin::MakeArrow(Qt::ArrowType arrow, int32_t steps) {
    auto* button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    button->setFixedWidth(16);
    connect(button, &QToolButton::clicked, this, [this, steps] { StepBy(steps); });
    return button;
}

QSize CNumberSpin::sizeHint() const { return {16, 22}; }

void CNumberSpin::SetRange32(int32_t low, int32_t high) {
    m_low = low;
    m_high = high;
}

void CNumberSpin::GetRange32(int32_t& low, int32_t& high) const {
    low = m_low;
    high = m_high;
}

void CNumberSpin::SetBuddy(QLineEdit* buddy) {
    if (m_buddy) m_buddy->removeEventFilter(this);
    m_buddy = buddy;
    if (m_buddy) m_buddy->installEventFilter(this);
}

QLineEdit* CNumberSpin::GetBuddy() const { return m_buddy; }

void CNumberSpin::StepBy(int32_t steps) {
    if (!m_buddy) return;
    // Raised to the low end of the range, then lowered to its high end, as
    // the field shows every number.
    const int64_t next = int64_t{ParseGroupedNumber(m_buddy->text().toStdString())} + steps;
    const auto value =
        static_cast<int32_t>(std::min<int64_t>(std::max<int64_t>(next, m_low), m_high));
    m_buddy->setText(QString::fromStdString(FormatGroupedNumber(value)));
    emit stepped(value);
}

bool CNumberSpin::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_buddy && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            StepBy(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
