#include "options/StoreAccess.h"

#include <Q9CfgE.h>

#include <algorithm>
#include <cstring>
#include <limits>

#include "options/StoreKeys.h"
#include "text/TextFormat.h"

namespace {

constexpr std::size_t kRecordHeader = 4;
constexpr char kRecordConstant = 1;

uint16_t RecordSize(const unsigned char* record) {
    return static_cast<uint16_t>(record[0] | (record[1] << 8));
}

}  // namespace

uint32_t TakeStoredBits(uint32_t section, uint32_t key, uint32_t mask, uint32_t word) {
    return ReplaceBits(word, Q9CfgE_GetDWEx(section, key), mask);
}

std::string StoreText(const char* text) { return TextOrEmpty(text); }

std::string ReadStoreText(uint32_t section, uint32_t key) {
    return StoreText(Q9CfgE_GetStrEx(section, key));
}

std::string ReadDefaultText(uint32_t section, uint32_t key) {
    return StoreText(Q9CfgE_GetDefaultStr(section, key));
}

std::string ReadEncText(uint32_t section, uint32_t key) {
    uint32_t length = 0;
    Q9CfgE_GetEncStrEx(section, key, nullptr, &length);
    if (length == 0) return {};
    std::string buffer(length, '\0');
    Q9CfgE_GetEncStrEx(section, key, buffer.data(), &length);
    return StoreText(buffer.c_str());
}

std::string PackObjectRecord(uint8_t kind, const std::string& text) {
    const std::size_t length = strnlen(text.c_str(), kMaxRecordText);
    const std::size_t size = kRecordHeader + length + 1;
    std::string record;
    record.reserve(size);
    record.push_back(static_cast<char>(size & 0xFF));
    record.push_back(static_cast<char>(size >> 8));
    record.push_back(static_cast<char>(kind));
    record.push_back(kRecordConstant);
    record.append(text.data(), length);
    record.push_back('\0');
    return record;
}

std::vector<ObjectRecord> ParseObjectList(const void* buffer) {
    std::vector<ObjectRecord> records;
    if (!buffer) return records;
    const auto* record = static_cast<const unsigned char*>(buffer);
    for (std::size_t size = RecordSize(record); size >= kRecordHeader; size = RecordSize(record)) {
        const char* text = reinterpret_cast<const char*>(record + kRecordHeader);
        records.push_back({record[2], std::string(text, strnlen(text, size - kRecordHeader))});
        record += size;
    }
    return records;
}

std::vector<ObjectRecord> ReadObjectList(uint32_t section) {
    return ParseObjectList(Q9CfgE_GetObjectList(section, 0));
}

void WriteObjectList(uint32_t section, const std::vector<ObjectRecord>& records) {
    Q9CfgE_SetStrEx(section, kObjectListKey, nullptr);
    WriteObjectRecords(section, records);
}

void WriteObjectRecords(uint32_t section, const std::vector<ObjectRecord>& records) {
    const std::size_t count = std::min<std::size_t>(
        records.size(), std::size_t{std::numeric_limits<uint16_t>::max()} + 1);
    for (std::size_t index = 0; index < count; ++index) {
        const std::string record = PackObjectRecord(records[index].kind, records[index].text);
        Q9CfgE_SetObjectList(section, static_cast<uint16_t>(index), record.data());
    }
}
