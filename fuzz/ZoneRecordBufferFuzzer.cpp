// The record buffer a caller of OrvDMZ_AddDMZA passes: a pointer only, each
// record's 32-bit size telling where the next begins, a size of 0 ending the
// run. The reader cannot be told the buffer's size, so it is given the input
// as a terminated buffer: the input followed by zero bytes enough for the
// longest record a size may declare and the terminator after it. A reader
// that refuses sizes beyond that and stops at a path's terminator never
// reads past that buffer. Records it accepts pack again into a buffer that
// unpacks to the same records.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "OrvDMZ.h"
#include "OrvDMZ/src/RecordBuffer.h"
#include "support/FuzzCheck.h"

namespace {

using orvdmz::RecordBuffer;
using orvdmz::ZoneRecord;

constexpr size_t kLongestRecord = ORVDMZ_RECORD_EXTRA + ORVDMZ_MAX_PATH;
constexpr size_t kTerminatorSize = 4;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::vector<unsigned char> buffer(data, data + size);
    buffer.resize(size + kLongestRecord + kTerminatorSize, 0);

    const std::optional<std::vector<ZoneRecord>> records = RecordBuffer::Unpack(buffer.data());
    if (!records) return 0;
    std::vector<RecordBuffer::TaggedRecord> tagged;
    for (const ZoneRecord& record : *records) {
        fuzz::Check(!record.path.empty() && record.path.size() <= ORVDMZ_MAX_PATH,
                    "a record's path is not empty and not too long");
        tagged.push_back({"Fuzz", record});
    }
    // No records pack into the terminator alone.
    std::vector<unsigned char> packed(
        std::max<uint64_t>(RecordBuffer::SizeOf(tagged), kTerminatorSize));
    RecordBuffer::Pack(tagged, packed.data());
    const std::optional<std::vector<ZoneRecord>> again = RecordBuffer::Unpack(packed.data());
    fuzz::Check(again && *again == *records, "packed records unpack to the same records");
    return 0;
}
