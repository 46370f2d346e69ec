// One object list record as a caller of Q9CfgE_SetObjectList passes it: a
// pointer only, the record's own 16-bit size telling how far it reaches and
// a NUL ending its text. The reader cannot be told the buffer's size, so it
// is given the input as a terminated buffer: the input, filled with zero
// bytes up to the 4-byte header when shorter, then one NUL. A reader that
// keeps to its size field and stops at the text's NUL never reads past that
// buffer. A record it accepts has its header and its text up to the first
// NUL, and encodes back to the same bytes.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "Q9CfgE/src/ObjectListBuffer.h"
#include "support/FuzzCheck.h"

namespace {

constexpr size_t kHeaderSize = 4;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::vector<unsigned char> record(data, data + size);
    record.resize(std::max(size, kHeaderSize), 0);
    record.push_back(0);

    const std::optional<cfge::StoreRecord> decoded =
        cfge::ObjectListBuffer::DecodeRecord(record.data());
    const size_t declared = size_t{record[0]} | size_t{record[1]} << 8;
    const auto* text = reinterpret_cast<const char*>(record.data() + kHeaderSize);
    const size_t textLength = std::strlen(text);
    const bool wellFormed = declared > kHeaderSize && textLength < declared - kHeaderSize;
    fuzz::Check(decoded.has_value() == wellFormed,
                "a record is accepted when its text ends within its size");
    if (!decoded) return 0;
    fuzz::Check(decoded->kind == record[2] && decoded->flag == record[3] &&
                    decoded->text == std::string(text, textLength),
                "a record keeps its kind, flag and text");
    // Encoded again, a record is its bytes up to the text's NUL, with that
    // length as its size, and the end of the list after it.
    const size_t used = kHeaderSize + textLength + 1;
    std::string expected(reinterpret_cast<const char*>(record.data()), used);
    expected[0] = static_cast<char>(used & 0xff);
    expected[1] = static_cast<char>(used >> 8);
    expected.append(2, '\0');
    fuzz::Check(cfge::ObjectListBuffer::Encode({*decoded}) == expected,
                "a record encodes back to its own bytes");
    return 0;
}
