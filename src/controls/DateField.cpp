#include "controls/DateField.h"

#include <QFocusEvent>
#include <QKeyEvent>

CDateField::CDateField(char kind, const DateFieldTable& table, QWidget* parent)
    : QLineEdit(parent), m_table(table), m_kind(kind), m_b24Hour(table.Is24Hour()) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFrame(false);
    // Tab reaches the fields through their control, not the window's order.
    setFocusPolicy(Qt::ClickFocus);
}

void CDateField::SetValue(int value) { setText(m_table.FieldText(m_kind, value)); }

int CDateField::Value() const { return m_table.ReadText(m_kind, text()); }

void CDateField::StepBy(int steps) {
    const QString next = m_table.FieldText(m_kind, m_table.Step(m_kind, Value(), steps));
    if (next == text()) return;
    selectAll();
    insert(next);
    // Selected again, so that the next digit typed replaces the whole value.
    selectAll();
}

void CDateField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    selectAll();
    emit entered();
}

void CDateField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        StepBy(event->key() == Qt::Key_Up ? 1 : -1);
        return;
    }
    QLineEdit::keyPressEvent(event);
}
