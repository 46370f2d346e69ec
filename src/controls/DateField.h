#pragma once

// The edit of one field of a CDateEdit: a number or a name, right-aligned.
// Its kind is the field's format character; the table it is made with says
// its limits and names and outlives it. The Up and Down keys step it as the
// spin of its control does.

#include <QLineEdit>

#include "schedule/DateFields.h"

class CDateField : public QLineEdit {
    Q_OBJECT

public:
    CDateField(char kind, const DateFieldTable& table, QWidget* parent = nullptr);

    char Kind() const { return m_kind; }
    bool Is24Hour() const { return m_b24Hour; }
    DateFieldLimits Limits() const { return m_table.Limits(m_kind); }

    // Shows value as the field shows it; a value beyond the limits shows as
    // the lowest. This is not an edit of the user's.
    void SetValue(int value);
    // The value of the text; a text beyond the limits reads as the default.
    int Value() const;
    // Steps the value (negative: down) within the limits, replacing the
    // whole text as typing does, so that it counts as the user's edit; a
    // step that leaves the text as it was does nothing.
    void StepBy(int steps);

signals:
    // The field has taken the keyboard focus.
    void entered();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    const DateFieldTable& m_table;
    char m_kind = 'S';
    bool m_b24Hour;
};
