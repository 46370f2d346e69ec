#pragma once

// The binary form in which records cross the library's border: a run of
// records ended by a size of 0 (see OrvDMZ.h for the layout).

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ZoneRecord.h"

namespace orvdmz {

class RecordBuffer {
public:
    // A record together with the tag written into its owner field.
    struct TaggedRecord {
        std::string owner;
        ZoneRecord record;
    };

    // The records of a terminated buffer. Null when a record is malformed:
    // its size is below ORVDMZ_RECORD_EXTRA or above that plus
    // ORVDMZ_MAX_PATH, or its path is empty or has no terminator inside the
    // record. The owner field and the constant word are not read.
    static std::optional<std::vector<ZoneRecord>> Unpack(const void* buffer);

    // Bytes that Pack writes for records, terminator included; 0 for none.
    static uint64_t SizeOf(const std::vector<TaggedRecord>& records);

    // Writes records and the terminator to out, which holds SizeOf(records)
    // bytes.
    static void Pack(const std::vector<TaggedRecord>& records, unsigned char* out);

private:
    static uint32_t ReadWord(const unsigned char* at);
    static void WriteWord(unsigned char* at, uint32_t value);
};

}  // namespace orvdmz
