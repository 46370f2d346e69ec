#include "controls/DateEdit.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QToolButton>
#include <algorithm>

#include "controls/DateField.h"
#include "framework/DialogControls.h"

namespace {

// The room the edit keeps on either side of its text, added to a field's
// width so that the text has the whole width it is given.
constexpr int kDateFieldInnerMargins = 4;
// A designator on a 24-hour clock shows nothing, and keeps a small place.
constexpr int kEmptyDesignatorWidth = 20;
constexpr int kDateSpinMinWidth = 17;
constexpr int kDateSpinGap = 2;

// One line of a sunken frame: the top and left edges in one colour, the
// bottom and right edges in the other.
void DrawDateBevel(QPainter& painter, const QRect& r, QRgb topLeft, QRgb bottomRight) {
    painter.setPen(QColor(topLeft));
    painter.drawLine(r.topLeft(), r.topRight());
    painter.drawLine(r.topLeft(), r.bottomLeft());
    painter.setPen(QColor(bottomRight));
    painter.drawLine(r.bottomLeft(), r.bottomRight());
    painter.drawLine(r.topRight(), r.bottomRight());
}

}  // namespace

CDateEdit::CDateEdit(QWidget* parent)
    : QWidget(parent),
      m_table(&DateFieldTable::Shared()),
      m_spinUp(MakeArrow(Qt::UpArrow, 1)),
      m_spinDown(MakeArrow(Qt::DownArrow, -1)) {
    setFocusPolicy(Qt::NoFocus);
    LayOut();
}

// The fields go first, while the table they hold on to is alive.
CDateEdit::~CDateEdit() { DeleteFields(); }

QToolButton* CDateEdit::MakeArrow(Qt::ArrowType arrow, int steps) {
    auto* button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, steps] { StepSpin(steps); });
    return button;
}

void CDateEdit::SetWindowText(const QString& format) {
    m_format = format;
    BuildRow();
}

void CDateEdit::SetLocale(const QLocale& locale) {
    DeleteFields();
    m_ownTable = std::make_unique<DateFieldTable>(locale);
    m_table = m_ownTable.get();
    BuildRow();
}

void CDateEdit::SetSpinStyle(int style) {
    m_spinStyle = style;
    LayOut();
    update();
}

void CDateEdit::BuildRow() {
    DeleteFields();
    m_row = ParseDateFormat(m_format);
    for (const DateFormatElement& element : m_row) {
        if (element.isField) m_fields.push_back(AddField(element.kind));
    }
    // The window's Tab order stops at the control, which hands the focus on.
    setFocusPolicy(m_fields.empty() ? Qt::NoFocus : Qt::StrongFocus);
    m_spinTarget = m_fields.empty() ? nullptr : m_fields.front();
    LayOut();
    update();
}

void CDateEdit::DeleteFields() {
    m_spinTarget = nullptr;
    for (CDateField* field : m_fields) delete field;
    m_fields.clear();
}

CDateField* CDateEdit::AddField(char kind) {
    auto* field = new CDateField(kind, *m_table, this);
    const int place = FieldCount();
    ctl::SetId(field, kFirstFieldId + place);
    connect(field, &QLineEdit::textEdited, this, [this, place] { OnFieldEdited(place); });
    connect(field, &CDateField::entered, this, [this, field] { m_spinTarget = field; });
    return field;
}

void CDateEdit::LayOut() {
    const QRect client = rect();
    QRect area = client;
    const bool spin = (m_spinStyle & kNoSpin) == 0;
    if (spin) {
        const int width = std::max(client.height() / 2, kDateSpinMinWidth);
        if (m_spinStyle & kSpinAtRight) {
            PlaceSpin(QRect(client.right() - width + 1, client.top(), width, client.height()));
            area.setRight(client.right() - width - kDateSpinGap);
        } else {
            PlaceSpin(QRect(client.left(), client.top(), width, client.height()));
            area.setLeft(client.left() + width + kDateSpinGap);
        }
    }
    m_spinUp->setVisible(spin);
    m_spinDown->setVisible(spin);
    m_frameRect = area;
    m_textRect = area.adjusted(3, 4, -3, -4);
    PlaceRow();
}

void CDateEdit::PlaceSpin(const QRect& spin) {
    const int upper = spin.height() / 2;
    m_spinUp->setGeometry(spin.left(), spin.top(), spin.width(), upper);
    m_spinDown->setGeometry(spin.left(), spin.top() + upper, spin.width(), spin.height() - upper);
}

// Literals and fields from the left of the text area, one unit apart; a
// field is shown only when it ends within the text area.
void CDateEdit::PlaceRow() {
    m_literalX.clear();
    int x = m_textRect.left();
    std::size_t next = 0;
    for (const DateFormatElement& element : m_row) {
        const int width = ElementWidth(element);
        if (element.isField) {
            CDateField* field = m_fields[next++];
            field->setGeometry(x, m_textRect.top(), width, m_textRect.height());
            field->setVisible(x + width <= m_textRect.right() + 1);
        } else {
            m_literalX.push_back(x);
        }
        x += width + 1;
    }
}

int CDateEdit::ElementWidth(const DateFormatElement& element) const {
    if (!element.isField) return fontMetrics().horizontalAdvance(element.literal);
    return FieldWidth(element.kind) + kDateFieldInnerMargins;
}

// The room for a field's text: two average characters for numbers, four
// for a full year, the widest of the names for names.
int CDateEdit::FieldWidth(char kind) const {
    if (kind == 'p' && m_table->Is24Hour()) return kEmptyDesignatorWidth;
    const QFontMetrics metrics = fontMetrics();
    const QStringList names = m_table->Names(kind);
    if (names.isEmpty()) return metrics.averageCharWidth() * (kind == 'Y' ? 4 : 2) + 2;
    int widest = 0;
    for (const QString& name : names) widest = std::max(widest, metrics.horizontalAdvance(name));
    return widest + 2;
}

QSize CDateEdit::sizeHint() const {
    const int height = fontMetrics().height() + 10;
    int width = 6;
    if ((m_spinStyle & kNoSpin) == 0)
        width += std::max(height / 2, kDateSpinMinWidth) + kDateSpinGap;
    for (const DateFormatElement& element : m_row) width += ElementWidth(element) + 1;
    return {width, height};
}

CDateField* CDateEdit::Field(int i) const {
    return i >= 0 && i < FieldCount() ? m_fields[static_cast<std::size_t>(i)] : nullptr;
}

void CDateEdit::StepSpin(int steps) {
    if (m_spinTarget) m_spinTarget->StepBy(steps);
}

void CDateEdit::OnFieldEdited(int place) {
    // Only the first fields count: pages rely on later fields (the seconds
    // of a long format) not marking the control changed.
    if (place < kCountedFields) m_bChanged = true;
    emit edited();
}

void CDateEdit::Exchange(ScheduleTime* time, bool read) {
    if (time == nullptr) return;
    if (read) {
        *time = ScheduleTime{};
        for (CDateField* field : m_fields) m_table->WriteTime(field->Kind(), field->Value(), time);
        return;
    }
    for (CDateField* field : m_fields) field->SetValue(m_table->ShowTime(field->Kind(), *time));
}

QString CDateEdit::GetDisplayText() const {
    QString text;
    std::size_t next = 0;
    for (const DateFormatElement& element : m_row) {
        text += element.isField ? m_fields[next++]->text() : element.literal;
    }
    return text;
}

// The fields and the spin are children, and follow the control.
void CDateEdit::EnableWindow(bool enable) {
    setEnabled(enable);
    update();
}

int CDateEdit::FocusedField() const {
    for (int i = 0; i < FieldCount(); ++i) {
        if (Field(i)->hasFocus()) return i;
    }
    return -1;
}

// The first field from place on, by step, that can take the focus; null
// past either end of the row.
CDateField* CDateEdit::EnterableField(int place, int step) const {
    for (int i = place; i >= 0 && i < FieldCount(); i += step) {
        CDateField* field = Field(i);
        if (field->isVisibleTo(this) && field->isEnabled()) return field;
    }
    return nullptr;
}

// The control the window's Tab order reaches from this one, passing over
// the fields and over controls that hand their focus to a child.
QWidget* CDateEdit::NeighbourControl(bool next) const {
    QWidget* w = next ? nextInFocusChain() : previousInFocusChain();
    for (; w != this; w = next ? w->nextInFocusChain() : w->previousInFocusChain()) {
        QWidget* proxy = w->focusProxy();
        const bool handsOn = proxy && (next ? proxy->isAncestorOf(w) : w->isAncestorOf(proxy));
        const bool takesTab = ((proxy ? proxy : w)->focusPolicy() & Qt::TabFocus) != 0;
        if (!isAncestorOf(w) && !handsOn && takesTab && w->isVisibleTo(window()) &&
            w->isEnabled()) {
            return w;
        }
    }
    return nullptr;
}

bool CDateEdit::focusNextPrevChild(bool next) {
    const int from = FocusedField();
    if (from < 0) return QWidget::focusNextPrevChild(next);
    const Qt::FocusReason reason = next ? Qt::TabFocusReason : Qt::BacktabFocusReason;
    if (CDateField* field = EnterableField(from + (next ? 1 : -1), next ? 1 : -1)) {
        field->setFocus(reason);
        return true;
    }
    // Past either end of the row, the focus moves on from the control.
    QWidget* neighbour = NeighbourControl(next);
    if (neighbour) neighbour->setFocus(reason);
    return neighbour != nullptr;
}

// Coming back with Shift+Tab enters the row at its end.
void CDateEdit::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    const bool back = event->reason() == Qt::BacktabFocusReason;
    if (CDateField* field = back ? EnterableField(FieldCount() - 1, -1) : EnterableField(0, 1)) {
        field->setFocus(event->reason());
    }
}

// Widths follow the font.
void CDateEdit::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) LayOut();
}

void CDateEdit::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    LayOut();
}

void CDateEdit::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.fillRect(rect(), palette().color(group, QPalette::Window));
    DrawBevels(painter);
    DrawLiterals(painter);
}

void CDateEdit::DrawBevels(QPainter& painter) const {
    DrawDateBevel(painter, m_frameRect, 0x808080, 0xFFFFFF);
    DrawDateBevel(painter, m_frameRect.adjusted(1, 1, -1, -1), 0x000000, 0xC0C0C0);
}

void CDateEdit::DrawLiterals(QPainter& painter) const {
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(palette().color(group, QPalette::WindowText));
    painter.setClipRect(m_textRect);
    std::size_t next = 0;
    for (const DateFormatElement& element : m_row) {
        if (element.isField) continue;
        const QRect place(m_literalX[next++], m_textRect.top(), ElementWidth(element) + 1,
                          m_textRect.height());
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, element.literal);
    }
}
