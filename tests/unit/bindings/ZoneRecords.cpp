#include "ZoneRecords.h"

#include <cstring>

std::vector<uint8_t> ZoneRecord(const std::string& path, uint32_t flags) {
    const uint32_t size = static_cast<uint32_t>(path.size()) + 541;
    std::vector<uint8_t> record(size, 0);
    const uint32_t header[4] = {size, 1, flags, 1};
    std::memcpy(record.data(), header, sizeof header);
    std::memcpy(record.data() + 536, path.c_str(), path.size() + 1);
    return record;
}

std::vector<uint8_t> ZoneBuffer(const std::vector<uint8_t>& record) {
    std::vector<uint8_t> buffer = record;
    buffer.resize(buffer.size() + 4, 0);  // the terminator
    return buffer;
}
