#include "targets/TargetList.h"

#include <cstring>

namespace {

constexpr std::size_t kHeaderSize = 4;
constexpr std::size_t kSpareBytes = 1;
constexpr std::size_t kTerminatorSize = 2;
constexpr std::size_t kMaxTextLength = 0xFFFF - kHeaderSize - 1 - kSpareBytes;
constexpr char kRecordConstant = 1;

std::size_t LengthAt(const unsigned char* bytes) {
    return static_cast<std::size_t>(bytes[0] | (bytes[1] << 8));
}

}  // namespace

Target AllLocalDrivesTarget() { return {kTargetAllLocalDrives, kAllLocalDrivesText}; }

std::string PackTarget(const Target& target) {
    const std::size_t textLength = strnlen(target.text.c_str(), kMaxTextLength);
    const std::size_t length = kHeaderSize + textLength + 1 + kSpareBytes;
    std::string record;
    record.reserve(length);
    record.push_back(static_cast<char>(length & 0xFF));
    record.push_back(static_cast<char>(length >> 8));
    record.push_back(static_cast<char>(target.kind));
    record.push_back(kRecordConstant);
    record.append(target.text.data(), textLength);
    record.push_back('\0');
    record.push_back('\0');
    return record;
}

std::string EncodeTargetList(const std::vector<Target>& targets) {
    std::string bytes;
    for (const Target& target : targets) bytes += PackTarget(target);
    bytes.append(kTerminatorSize, '\0');
    return bytes;
}

int32_t WriteTargetList(const std::vector<Target>& targets, void* buffer, int32_t size) {
    auto* out = static_cast<char*>(buffer);
    const std::size_t capacity = size > 0 ? static_cast<std::size_t>(size) : 0;
    std::size_t sum = 0;
    for (const Target& target : targets) {
        const std::string record = PackTarget(target);
        const std::size_t start = sum;
        sum += record.size();
        if (out && sum < capacity) std::memcpy(out + start, record.data(), record.size());
    }
    if (out && sum + kTerminatorSize <= capacity) {
        std::memset(out + sum, 0, kTerminatorSize);
    } else if (out && capacity > 3) {
        std::memset(out, 0, kTerminatorSize);
    }
    return static_cast<int32_t>(sum + kTerminatorSize);
}

ParsedTargetList ParseTargetList(const void* data, std::size_t size) {
    ParsedTargetList parsed;
    const auto* bytes = static_cast<const unsigned char*>(data);
    std::size_t offset = 0;
    while (true) {
        if (!bytes || size - offset < kTerminatorSize) {
            parsed.problem = TargetListProblem::kNoTerminator;
            return parsed;
        }
        const std::size_t length = LengthAt(bytes + offset);
        if (length == 0) return parsed;
        if (length < kHeaderSize + 1 || length > size - offset) {
            parsed.problem = TargetListProblem::kBadLength;
            return parsed;
        }
        const char* text = reinterpret_cast<const char*>(bytes + offset + kHeaderSize);
        const std::size_t textRoom = length - kHeaderSize;
        const std::size_t textLength = strnlen(text, textRoom);
        if (textLength == textRoom) {
            parsed.problem = TargetListProblem::kUnterminatedText;
            return parsed;
        }
        parsed.targets.push_back({bytes[offset + 2], std::string(text, textLength)});
        offset += length;
    }
}
