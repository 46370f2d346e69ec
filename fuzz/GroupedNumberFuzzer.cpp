// A number as a person types it into a grouped number field ("4,194,303"):
// commas are ignored and the rest is read as atoi reads it, held within 32
// bits. The reader agrees with the C library's strtoll on the text without
// commas, and the number it reads is shown as a text that reads back to it.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

#include "support/FuzzCheck.h"
#include "text/GroupedText.h"

namespace {

int32_t Expected(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), ','), text.end());
    const long long number = std::strtoll(text.c_str(), nullptr, 10);
    return static_cast<int32_t>(std::clamp<long long>(number, std::numeric_limits<int32_t>::min(),
                                                      std::numeric_limits<int32_t>::max()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(fuzz::AsText(data, size));
    const int32_t number = ParseGroupedNumber(text);
    // strtoll stops at a 0 byte, the reader at any byte that is not a digit.
    if (text.find('\0') == std::string::npos) {
        fuzz::Check(number == Expected(text), "the number is read as strtoll reads it");
    }
    fuzz::Check(ParseGroupedNumber(FormatGroupedNumber(number)) == number,
                "the number shown reads back to itself");
    return 0;
}
