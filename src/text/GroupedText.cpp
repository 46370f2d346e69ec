#include "text/GroupedText.h"

#include <algorithm>
#include <cctype>
#include <limits>

#include "text/TextFormat.h"

std::string FormatGroupedNumber(int32_t value) {
    if (value >= 1000000000) {
        return FormatText("%d,%03d,%03d,%03d", value / 1000000000, value / 1000000 % 1000,
                          value / 1000 % 1000, value % 1000);
    }
    if (value >= 1000000) {
        return FormatText("%d,%03d,%03d", value / 1000000, value / 1000 % 1000, value % 1000);
    }
    if (value >= 1000) return FormatText("%d,%03d", value / 1000, value % 1000);
    return FormatText("%d", value);
}

int32_t ParseGroupedNumber(const std::string& text) {
    std::string digits = text;
    digits.erase(std::remove(digits.begin(), digits.end(), ','), digits.end());

    std::size_t i = 0;
    while (i < digits.size() && std::isspace(static_cast<unsigned char>(digits[i]))) ++i;
    bool negative = false;
    if (i < digits.size() && (digits[i] == '+' || digits[i] == '-')) negative = digits[i++] == '-';

    constexpr int64_t kLimit = int64_t{std::numeric_limits<int32_t>::max()} + 1;
    int64_t magnitude = 0;
    for (; i < digits.size() && std::isdigit(static_cast<unsigned char>(digits[i])); ++i) {
        magnitude = std::min(kLimit, magnitude * 10 + (digits[i] - '0'));
    }
    const int64_t number = negative ? -magnitude : magnitude;
    return static_cast<int32_t>(std::clamp<int64_t>(number, std::numeric_limits<int32_t>::min(),
                                                    std::numeric_limits<int32_t>::max()));
}
