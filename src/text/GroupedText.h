#pragma once

// Numbers in the settings pages are shown with thousands separated by commas
// ("4,194,303") and read back with the commas ignored.

#include <cstdint>
#include <string>

// "%d" below 1,000, then "%d,%03d", "%d,%03d,%03d" and "%d,%03d,%03d,%03d"
// from 1,000, 1,000,000 and 1,000,000,000 on. Negative numbers get no
// separators.
std::string FormatGroupedNumber(int32_t value);

// Removes every comma and converts the rest as atoi does: leading blanks, an
// optional sign, then digits up to the first other character; 0 when there
// are none. Numbers beyond 32 bits are held at the nearest end.
int32_t ParseGroupedNumber(const std::string& text);
