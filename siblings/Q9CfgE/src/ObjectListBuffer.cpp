#include "ObjectListBuffer.h"

#include <cstring>

namespace cfge {
namespace {
constexpr size_t kHeaderSize = 4;
}

std::string ObjectListBuffer::Encode(const std::vector<StoreRecord>& records) {
    std::string buffer;
    for (const StoreRecord& record : records) {
        // The parser and SetObjectList keep texts short enough for 16 bits.
        const size_t size = kHeaderSize + record.text.size() + 1;
        buffer.push_back(static_cast<char>(size & 0xff));
        buffer.push_back(static_cast<char>(size >> 8 & 0xff));
        buffer.push_back(static_cast<char>(record.kind));
        buffer.push_back(static_cast<char>(record.flag));
        buffer.append(record.text);
        buffer.push_back('\0');
    }
    buffer.append(2, '\0');
    return buffer;
}

std::optional<StoreRecord> ObjectListBuffer::DecodeRecord(const void* record) {
    if (!record) return std::nullopt;
    const auto* bytes = static_cast<const unsigned char*>(record);
    const size_t size = static_cast<size_t>(bytes[0]) | static_cast<size_t>(bytes[1]) << 8;
    if (size < kHeaderSize + 1) return std::nullopt;
    const auto* text = reinterpret_cast<const char*>(bytes + kHeaderSize);
    const void* end = std::memchr(text, '\0', size - kHeaderSize);
    if (!end) return std::nullopt;
    StoreRecord decoded;
    decoded.kind = bytes[2];
    decoded.flag = bytes[3];
    decoded.text.assign(text, static_cast<const char*>(end));
    return decoded;
}

}  // namespace cfge
