#include "controls/GroupedNumber.h"

#include <QLineEdit>

#include "controls/NumberSpin.h"
#include "text/GroupedText.h"
#include "text/ValidatorMessages.h"

void SetGroupedNumber(CNumberSpin* spin, int32_t value) {
    if (!spin || !spin->GetBuddy()) return;
    int32_t low = 0;
    int32_t high = 0;
    spin->GetRange32(low, high);
    if (value < low) value = low;
    if (value > high) value = high;
    spin->GetBuddy()->setText(QString::fromStdString(FormatGroupedNumber(value)));
}

int32_t GetGroupedNumber(CNumberSpin* spin, int32_t* outOfRange) {
    if (outOfRange) *outOfRange = 1;
    if (!spin || !spin->GetBuddy()) return 0;
    const int32_t number = ParseGroupedNumber(spin->GetBuddy()->text().toStdString());
    int32_t low = 0;
    int32_t high = 0;
    spin->GetRange32(low, high);
    if (outOfRange && number >= low && number <= high) *outOfRange = 0;
    return number;
}

int32_t ValidateGroupedNumber(QWidget* owner, CNumberSpin* spin) {
    int32_t outOfRange = 1;
    GetGroupedNumber(spin, &outOfRange);
    if (!outOfRange) return 0;
    int32_t low = 0;
    int32_t high = 0;
    if (spin) spin->GetRange32(low, high);
    return ShowRangeMessage(owner, low, high);
}
