#pragma once

// Reads the text format of store files (see docs/store-format.md). The parse
// is all or nothing: the first error makes the whole file unparseable, since
// a half-understood configuration applied in part would be worse than none.

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "StoreData.h"

namespace cfge {

struct ParseError {
    size_t line = 0;  // counted from 1
    std::string message;
};

class StoreParser {
public:
    // The first line of every store file.
    static constexpr std::string_view kHeader = "Q9 Configuration Store 1";

    // Fills *data (which must be empty) and answers true, or answers false
    // with *error set. An empty file (0 bytes) is refused: the
    // writer never makes one.
    static bool Parse(std::string_view bytes, StoreData* data, ParseError* error);

    // "0x" and 1 to 8 hex digits, or 1 to 10 decimal digits, within 32 bits.
    static std::optional<uint32_t> ParseNumber(std::string_view text);

private:
    explicit StoreParser(StoreData* data) : m_data(data) {}

    bool ParseLine(std::string_view line, std::string* message);
    bool ParseSectionHeader(std::string_view line, std::string* message);
    bool ParseValueLine(std::string_view line, std::string* message);
    bool ParseRecord(std::string_view text, std::string* message);

    StoreData* m_data;
    std::optional<uint32_t> m_section;
    std::set<uint32_t> m_seenSections;
};

}  // namespace cfge
