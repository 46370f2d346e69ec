#include "schedule/AccountValue.h"

namespace {

constexpr std::size_t kLengthSize = 4;

// The register after one byte: s is the scrambled byte.
uint16_t NextKey(uint16_t key, uint8_t scrambled) {
    return static_cast<uint16_t>((scrambled + key) * 52845U + 22719U);
}

uint8_t HighByte(uint16_t key) { return static_cast<uint8_t>(key >> 8); }

std::string UpToNul(const std::string& text) { return text.substr(0, text.find('\0')); }

void AppendLength(std::string& bytes, uint32_t length) {
    for (int i = 0; i < 4; ++i) bytes.push_back(static_cast<char>((length >> (8 * i)) & 0xFF));
}

void AppendText(std::string& bytes, const std::string& text) {
    AppendLength(bytes, static_cast<uint32_t>(text.size() + 1));
    bytes += ScrambleAccountText(text);
    bytes.push_back('\0');
}

// Reads one length word and its text at *offset; false when they do not fit
// in size bytes or the text lacks its zero byte.
bool ReadText(const uint8_t* bytes, std::size_t size, std::size_t* offset, std::string* text) {
    if (size - *offset < kLengthSize) return false;
    uint32_t length = 0;
    for (std::size_t i = 0; i < kLengthSize; ++i)
        length |= static_cast<uint32_t>(bytes[*offset + i]) << (8 * i);
    *offset += kLengthSize;
    if (length == 0 || length > size - *offset) return false;
    const char* start = reinterpret_cast<const char*>(bytes + *offset);
    if (start[length - 1] != '\0') return false;
    *text = UpToNul(UnscrambleAccountText(std::string(start, length - 1)));
    *offset += length;
    return true;
}

}  // namespace

std::string ScrambleAccountText(const std::string& text) {
    std::string out(text.size(), '\0');
    uint16_t key = kAccountSeed;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto scrambled = static_cast<uint8_t>(static_cast<uint8_t>(text[i]) ^ HighByte(key));
        out[i] = static_cast<char>(scrambled);
        key = NextKey(key, scrambled);
    }
    return out;
}

std::string UnscrambleAccountText(const std::string& scrambled) {
    std::string out(scrambled.size(), '\0');
    uint16_t key = kAccountSeed;
    for (std::size_t i = 0; i < scrambled.size(); ++i) {
        const auto byte = static_cast<uint8_t>(scrambled[i]);
        out[i] = static_cast<char>(byte ^ HighByte(key));
        key = NextKey(key, byte);
    }
    return out;
}

std::string EncodeAccountValue(const std::string& user, const std::string& password) {
    std::string bytes;
    AppendText(bytes, UpToNul(user));
    AppendText(bytes, UpToNul(password));
    return bytes;
}

std::optional<AccountValue> ParseAccountValue(const void* data, std::size_t size) {
    if (data == nullptr) return std::nullopt;
    const auto* bytes = static_cast<const uint8_t*>(data);
    std::size_t offset = 0;
    AccountValue value;
    if (!ReadText(bytes, size, &offset, &value.user)) return std::nullopt;
    if (!ReadText(bytes, size, &offset, &value.password)) return std::nullopt;
    if (offset != size) return std::nullopt;
    return value;
}
