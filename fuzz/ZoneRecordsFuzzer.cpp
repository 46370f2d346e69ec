// The exclusion zone library's answer as the exclusions page reads it: a
// buffer with its size. The reader reads nothing past the size; the records
// it accepts before any fault encode to a buffer that reads back the same
// records.

#include <cstddef>
#include <cstdint>
#include <string>

#include "support/FuzzCheck.h"
#include "targets/ZoneRecords.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const ParsedZoneRecords parsed = ParseZoneRecords(data, size);
    const std::string encoded = EncodeZoneRecords(parsed.records);
    const ParsedZoneRecords again = ParseZoneRecords(encoded.data(), encoded.size());
    fuzz::Check(again.problem == ZoneRecordsProblem::kNone, "an encoded buffer reads whole");
    fuzz::Check(again.records == parsed.records, "an encoded buffer reads back the same records");
    return 0;
}
