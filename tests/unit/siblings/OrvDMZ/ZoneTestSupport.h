#pragma once

// Shared by the zone tests: the record buffers of the library's border built
// and read byte by byte, as a caller that knows only the documented layout
// would.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "OrvDMZ.h"
#include "support/TemporaryInstallation.h"

// The owner name the tests write their records under.
inline constexpr const char* kOwner = "Q9Pro2004";

// One record as a caller sees it.
struct TestRecord {
    uint32_t inUse = 1;
    uint32_t flags = 0;
    std::string path;
    std::string owner;  // read from the owner field; not written
    uint32_t constant = 1;

    bool operator==(const TestRecord&) const = default;
};

inline void PutWord(std::vector<unsigned char>& bytes, std::size_t at, uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i)
        bytes[at + i] = static_cast<unsigned char>(value >> (8 * i));
}

inline uint32_t GetWord(const unsigned char* at) {
    return static_cast<uint32_t>(at[0]) | static_cast<uint32_t>(at[1]) << 8 |
           static_cast<uint32_t>(at[2]) << 16 | static_cast<uint32_t>(at[3]) << 24;
}

// A terminated buffer of records; only the path and the numbers are written,
// as the system's pages do.
inline std::vector<unsigned char> MakeBuffer(const std::vector<TestRecord>& records) {
    std::vector<unsigned char> bytes;
    for (const auto& record : records) {
        const std::size_t at = bytes.size();
        const auto size = static_cast<uint32_t>(record.path.size() + ORVDMZ_RECORD_EXTRA);
        bytes.resize(at + size, 0);
        PutWord(bytes, at, size);
        PutWord(bytes, at + 4, record.inUse);
        PutWord(bytes, at + 8, record.flags);
        PutWord(bytes, at + 12, 1);
        std::memcpy(bytes.data() + at + ORVDMZ_PATH_OFFSET, record.path.data(), record.path.size());
    }
    bytes.resize(bytes.size() + 4, 0);
    return bytes;
}

// The records of a terminated buffer; fails the test on a record whose size
// does not match its path.
inline std::vector<TestRecord> ReadBuffer(const unsigned char* at) {
    std::vector<TestRecord> records;
    for (uint32_t size = GetWord(at); size != 0; size = GetWord(at)) {
        TestRecord record;
        record.inUse = GetWord(at + 4);
        record.flags = GetWord(at + 8);
        record.constant = GetWord(at + 12);
        record.owner = reinterpret_cast<const char*>(at + ORVDMZ_OWNER_OFFSET);
        record.path = reinterpret_cast<const char*>(at + ORVDMZ_PATH_OFFSET);
        EXPECT_EQ(size, record.path.size() + ORVDMZ_RECORD_EXTRA) << record.path;
        records.push_back(record);
        at += size;
    }
    return records;
}

// Everything owner sees, read in the two steps the system uses.
inline std::vector<TestRecord> EnumerateAll(void* zone, const char* owner,
                                            const char* owner2 = nullptr) {
    const int32_t size = OrvDMZ_EnumDMZA(zone, owner, owner2 ? owner2 : owner, nullptr, 0);
    if (size == 0) return {};
    std::vector<unsigned char> bytes(static_cast<std::size_t>(size));
    EXPECT_EQ(OrvDMZ_EnumDMZA(zone, owner, owner2 ? owner2 : owner, bytes.data(), size), size);
    return ReadBuffer(bytes.data());
}

inline TestRecord Record(uint32_t inUse, uint32_t flags, std::string path, std::string owner = {}) {
    return TestRecord{inUse, flags, std::move(path), std::move(owner), 1};
}
