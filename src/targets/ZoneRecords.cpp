#include "targets/ZoneRecords.h"

#include <cstring>

namespace {

constexpr std::size_t kOwnerOffset = 16;
constexpr std::size_t kOwnerSize = 520;
constexpr std::size_t kPathOffset = 536;
constexpr std::size_t kTrailingZeros = 4;
constexpr std::size_t kRecordExtra = kPathOffset + 1 + kTrailingZeros;
constexpr std::size_t kTerminatorSize = 4;

void PutWord(std::string& bytes, std::size_t offset, uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i) bytes[offset + i] = static_cast<char>(value >> (8 * i));
}

uint32_t WordAt(const unsigned char* bytes) {
    return static_cast<uint32_t>(bytes[0]) | static_cast<uint32_t>(bytes[1]) << 8 |
           static_cast<uint32_t>(bytes[2]) << 16 | static_cast<uint32_t>(bytes[3]) << 24;
}

std::string TextIn(const unsigned char* bytes, std::size_t room) {
    const char* text = reinterpret_cast<const char*>(bytes);
    return std::string(text, strnlen(text, room));
}

}  // namespace

std::string PackZoneRecord(const ZoneRecord& record) {
    const std::size_t pathLength = strnlen(record.path.c_str(), kMaxZonePath);
    const std::size_t ownerLength = strnlen(record.owner.c_str(), kOwnerSize - 1);
    std::string bytes(pathLength + kRecordExtra, '\0');
    PutWord(bytes, 0, static_cast<uint32_t>(bytes.size()));
    PutWord(bytes, 4, record.inUse);
    PutWord(bytes, 8, record.flags);
    PutWord(bytes, 12, 1);
    bytes.replace(kOwnerOffset, ownerLength, record.owner.data(), ownerLength);
    bytes.replace(kPathOffset, pathLength, record.path.data(), pathLength);
    return bytes;
}

std::string EncodeZoneRecords(const std::vector<ZoneRecord>& records) {
    std::string bytes;
    for (const ZoneRecord& record : records) bytes += PackZoneRecord(record);
    bytes.append(kTerminatorSize, '\0');
    return bytes;
}

int32_t WriteZoneRecords(const std::vector<ZoneRecord>& records, void* buffer, int32_t size) {
    auto* out = static_cast<char*>(buffer);
    const std::size_t capacity = size > 0 ? static_cast<std::size_t>(size) : 0;
    std::size_t sum = 0;
    for (const ZoneRecord& record : records) {
        const std::string bytes = PackZoneRecord(record);
        const std::size_t start = sum;
        sum += bytes.size();
        if (out && sum < capacity) std::memcpy(out + start, bytes.data(), bytes.size());
    }
    if (out && sum + kTerminatorSize <= capacity) {
        std::memset(out + sum, 0, kTerminatorSize);
    } else if (out && capacity >= kTerminatorSize) {
        std::memset(out, 0, kTerminatorSize);
    }
    return static_cast<int32_t>(sum + kTerminatorSize);
}

ParsedZoneRecords ParseZoneRecords(const void* data, std::size_t size) {
    ParsedZoneRecords parsed;
    const auto* bytes = static_cast<const unsigned char*>(data);
    std::size_t offset = 0;
    while (true) {
        if (!bytes || size - offset < kTerminatorSize) {
            parsed.problem = ZoneRecordsProblem::kNoTerminator;
            return parsed;
        }
        const unsigned char* record = bytes + offset;
        const std::size_t recordSize = WordAt(record);
        if (recordSize == 0) return parsed;
        if (recordSize < kPathOffset + 1 || recordSize > size - offset) {
            parsed.problem = ZoneRecordsProblem::kBadSize;
            return parsed;
        }
        const std::size_t pathRoom = recordSize - kPathOffset;
        if (strnlen(reinterpret_cast<const char*>(record + kPathOffset), pathRoom) == pathRoom) {
            parsed.problem = ZoneRecordsProblem::kUnterminatedPath;
            return parsed;
        }
        parsed.records.push_back({WordAt(record + 4), WordAt(record + 8),
                                  TextIn(record + kOwnerOffset, kOwnerSize),
                                  TextIn(record + kPathOffset, pathRoom)});
        offset += recordSize;
    }
}
