#pragma once

// The object list as callers see it: records laid end to end, each a 16-bit
// little-endian size (the 4-byte header included), a kind byte, a constant
// byte and a NUL-terminated text; a 16-bit 0 ends the list.

#include <optional>
#include <string>
#include <vector>

#include "StoreData.h"

namespace cfge {

class ObjectListBuffer {
public:
    static std::string Encode(const std::vector<StoreRecord>& records);

    // One record as a caller passes it in. Its size field is authoritative:
    // at least 5, with the text's NUL within it. Nullopt otherwise.
    static std::optional<StoreRecord> DecodeRecord(const void* record);
};

}  // namespace cfge
