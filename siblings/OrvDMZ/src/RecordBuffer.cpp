#include "RecordBuffer.h"

#include <cstring>

#include "OrvDMZ.h"

namespace orvdmz {
namespace {

constexpr uint32_t kTerminatorSize = 4;
constexpr uint32_t kMaxRecordSize = ORVDMZ_RECORD_EXTRA + ORVDMZ_MAX_PATH;

uint32_t RecordSize(const ZoneRecord& record) {
    return static_cast<uint32_t>(record.path.size()) + ORVDMZ_RECORD_EXTRA;
}

}  // namespace

std::optional<std::vector<ZoneRecord>> RecordBuffer::Unpack(const void* buffer) {
    std::vector<ZoneRecord> records;
    const auto* at = static_cast<const unsigned char*>(buffer);
    for (uint32_t size = ReadWord(at); size != 0; size = ReadWord(at)) {
        if (size < ORVDMZ_RECORD_EXTRA || size > kMaxRecordSize) return std::nullopt;
        const auto* path = reinterpret_cast<const char*>(at + ORVDMZ_PATH_OFFSET);
        const std::size_t room = size - ORVDMZ_PATH_OFFSET;
        const std::size_t length = strnlen(path, room);
        if (length == 0 || length == room) return std::nullopt;
        records.push_back(
            ZoneRecord{ReadWord(at + 4), ReadWord(at + 8), std::string(path, length)});
        at += size;
    }
    return records;
}

uint64_t RecordBuffer::SizeOf(const std::vector<TaggedRecord>& records) {
    if (records.empty()) return 0;
    uint64_t total = kTerminatorSize;
    for (const auto& tagged : records) total += RecordSize(tagged.record);
    return total;
}

void RecordBuffer::Pack(const std::vector<TaggedRecord>& records, unsigned char* out) {
    for (const auto& tagged : records) {
        const uint32_t size = RecordSize(tagged.record);
        std::memset(out, 0, size);
        WriteWord(out, size);
        WriteWord(out + 4, tagged.record.inUse);
        WriteWord(out + 8, tagged.record.flags);
        WriteWord(out + 12, 1);
        std::memcpy(out + ORVDMZ_OWNER_OFFSET, tagged.owner.data(), tagged.owner.size());
        std::memcpy(out + ORVDMZ_PATH_OFFSET, tagged.record.path.data(), tagged.record.path.size());
        out += size;
    }
    WriteWord(out, 0);
}

uint32_t RecordBuffer::ReadWord(const unsigned char* at) {
    return static_cast<uint32_t>(at[0]) | static_cast<uint32_t>(at[1]) << 8 |
           static_cast<uint32_t>(at[2]) << 16 | static_cast<uint32_t>(at[3]) << 24;
}

void RecordBuffer::WriteWord(unsigned char* at, uint32_t value) {
    for (int i = 0; i < 4; ++i) at[i] = static_cast<unsigned char>(value >> (8 * i));
}

}  // namespace orvdmz
