#pragma once

// A date and time control made of a row of small fields with literal text
// between them and one up/down spin, all described by a format text such as
// "%I:%M %p" (docs/date-fields.md). A form sets the format through the
// property "format"; a page changes it with SetWindowText, and moves the
// values in and out of a ScheduleTime with Exchange.
//
// The spin steps the field that last had the focus, within that field's
// limits. Tab and Shift+Tab move along the row and, at either end, on to the
// next or previous control of the parent.

#include <QLocale>
#include <QString>
#include <QWidget>
#include <memory>
#include <vector>

#include "schedule/DateFields.h"

class CDateField;
class QToolButton;

class CDateEdit : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString format READ GetWindowText WRITE SetWindowText)
    Q_PROPERTY(int spinStyle READ SpinStyle WRITE SetSpinStyle)

public:
    // Style bits of spinStyle; without either the spin stands at the left.
    static constexpr int kNoSpin = 0x1;
    static constexpr int kSpinAtRight = 0x2;
    // The control id of the first field; the others follow in row order.
    static constexpr int kFirstFieldId = 101;
    // Edits in fields from this place on do not mark the control changed.
    static constexpr int kCountedFields = 3;

    explicit CDateEdit(QWidget* parent = nullptr);
    ~CDateEdit() override;

    // Replaces the format, builds the row anew and gives the spin to the
    // first field.
    void SetWindowText(const QString& format);
    QString GetWindowText() const { return m_format; }

    // With read, zeroes *time and lets each field write its member, in row
    // order; without it, each field shows its member of *time.
    void Exchange(ScheduleTime* time, bool read);

    // Whether the user has edited one of the first three fields since the
    // control was made or ClearChanged was called.
    bool IsChanged() const { return m_bChanged; }
    void ClearChanged() { m_bChanged = false; }

    // The literals and the fields' texts joined in row order.
    QString GetDisplayText() const;

    // Enables or disables the fields and the spin, and repaints.
    void EnableWindow(bool enable);

    int SpinStyle() const { return m_spinStyle; }
    void SetSpinStyle(int style);

    // Names and the clock come from the process's table unless a locale of
    // the control's own is given; the row is built anew.
    void SetLocale(const QLocale& locale);

    int FieldCount() const { return static_cast<int>(m_fields.size()); }
    CDateField* Field(int i) const;
    // The field the spin steps, or null when there is none.
    CDateField* SpinTarget() const { return m_spinTarget; }
    // Steps the spin's field (negative: down), as the spin's arrows do.
    void StepSpin(int steps);

    // The frame around the fields, and the area the fields stand in.
    QRect FrameRect() const { return m_frameRect; }
    QRect TextRect() const { return m_textRect; }
    // The x position of each literal, in row order.
    const std::vector<int>& LiteralPositions() const { return m_literalX; }

    QSize sizeHint() const override;

signals:
    // The user changed the text of a field.
    void edited();

protected:
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QToolButton* MakeArrow(Qt::ArrowType arrow, int steps);
    void BuildRow();
    void DeleteFields();
    CDateField* AddField(char kind);
    void LayOut();
    void PlaceRow();
    int ElementWidth(const DateFormatElement& element) const;
    int FieldWidth(char kind) const;
    void PlaceSpin(const QRect& spin);
    void OnFieldEdited(int place);
    int FocusedField() const;
    CDateField* EnterableField(int place, int step) const;
    QWidget* NeighbourControl(bool next) const;
    void DrawBevels(QPainter& painter) const;
    void DrawLiterals(QPainter& painter) const;

    QString m_format;
    int m_spinStyle = 0;
    std::unique_ptr<DateFieldTable> m_ownTable;
    const DateFieldTable* m_table;
    std::vector<DateFormatElement> m_row;
    std::vector<int> m_literalX;
    std::vector<CDateField*> m_fields;
    CDateField* m_spinTarget = nullptr;
    QToolButton* m_spinUp;
    QToolButton* m_spinDown;
    QRect m_frameRect;
    QRect m_textRect;
    bool m_bChanged = false;
};
