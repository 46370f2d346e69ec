#pragma once

// A spin button beside a number field. The field (the buddy) holds the text,
// grouped with commas; the spin holds the range and steps the number with
// its arrows or with the Up and Down keys in the field.

#include <QWidget>
#include <cstdint>

class QLineEdit;
class QToolButton;

class CNumberSpin : public QWidget {
    Q_OBJECT

public:
    explicit CNumberSpin(QWidget* parent = nullptr);

    void SetRange32(int32_t low, int32_t high);
    void GetRange32(int32_t& low, int32_t& high) const;

    // The field this spin steps; null for none. The spin does not own it.
    void SetBuddy(QLineEdit* buddy);
    QLineEdit* GetBuddy() const;

    // Steps the buddy's number by steps (negative: down), held within the
    // range, and shows it grouped.
    void StepBy(int32_t steps);

    QSize sizeHint() const override;

signals:
    // The number after a step.
    void stepped(int32_t value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QToolButton* MakeArrow(Qt::ArrowType arrow, int32_t steps);

    int32_t m_low = 0;
    int32_t m_high = 100;
    QLineEdit* m_buddy = nullptr;
};
