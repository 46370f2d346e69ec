#pragma once

// Records of the shared exclusion zone, as buffers travel to and from the
// zone library: records laid end to end, ended by a 32-bit size of 0. All
// numbers are 32-bit little-endian.
//
//   offset 0     record size: path length + 541
//   offset 4     1 when in use
//   offset 8     flags (kZone...)
//   offset 12    1
//   offset 16    owner tag, NUL-terminated, in a field of 520 bytes (the
//                library fills it; records written here leave it empty)
//   offset 536   the path, NUL-terminated, then 4 zero bytes

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

constexpr uint32_t kZoneFile = 0x00000001;
constexpr uint32_t kZoneFolder = 0x00000002;
constexpr uint32_t kZonePath = kZoneFile | kZoneFolder;
constexpr uint32_t kZoneFixed = 0x00000010;    // the product's, not the user's to change
constexpr uint32_t kZoneDerived = 0x00000020;  // derived here from a network path; never shown
constexpr uint32_t kZoneKeptAside = kZoneFixed | kZoneDerived;
constexpr uint32_t kZoneUser = 0x00000100;  // the user's: kept in the store, deletable
constexpr uint32_t kZoneExtension = 0x00010000;
// Marks, in what the zone library answers, a record of another owner; the
// library never stores a record that carries it.
constexpr uint32_t kZoneForeign = 0x40000000;

// This product's owner tag in the zone.
constexpr char kZoneOwnerTag[] = "Q9Pro2004";

struct ZoneRecord {
    uint32_t inUse = 1;
    uint32_t flags = 0;
    std::string owner;
    std::string path;

    bool operator==(const ZoneRecord&) const = default;
};

// The bytes of one record. Texts end at their first NUL; an owner longer
// than its field, or a path longer than kMaxZonePath, is cut.
std::string PackZoneRecord(const ZoneRecord& record);

constexpr std::size_t kMaxZonePath = 4095;

// The records and the terminator.
std::string EncodeZoneRecords(const std::vector<ZoneRecord>& records);

// As WriteTargetList: the bytes the whole buffer needs; records written
// while the running sum stays below size; a buffer too small for the
// terminator behind them holds an empty list (its first size set to 0, when
// it has room for it).
int32_t WriteZoneRecords(const std::vector<ZoneRecord>& records, void* buffer, int32_t size);

enum class ZoneRecordsProblem {
    kNone,
    kNoTerminator,      // the bytes end before a size of 0
    kBadSize,           // a size too small for a record, or past the end
    kUnterminatedPath,  // no NUL behind the path within the record
};

struct ParsedZoneRecords {
    std::vector<ZoneRecord> records;  // the records before the problem
    ZoneRecordsProblem problem = ZoneRecordsProblem::kNone;
};

// Reads size bytes of a buffer. Nothing past size is read.
ParsedZoneRecords ParseZoneRecords(const void* data, std::size_t size);
