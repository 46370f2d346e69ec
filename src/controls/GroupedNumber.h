#pragma once

// Number fields: an edit with a CNumberSpin as its partner. The spin carries
// the range, the edit shows the number grouped with commas.

#include <cstdint>

class CNumberSpin;
class QWidget;

// Shows value in the spin's buddy, first raised to the low end of the range,
// then lowered to its high end. Nothing happens without a buddy.
void SetGroupedNumber(CNumberSpin* spin, int32_t value);

// The buddy's number, commas ignored; 0 without a buddy. *outOfRange, when
// given, is 1 unless the number lies within the range, both ends included.
int32_t GetGroupedNumber(CNumberSpin* spin, int32_t* outOfRange);

// 0 when the field's number is within range; otherwise shows the range
// message with the spin's bounds and returns 1.
int32_t ValidateGroupedNumber(QWidget* owner, CNumberSpin* spin);
