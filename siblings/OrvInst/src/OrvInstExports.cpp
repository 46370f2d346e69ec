// The C entry points. Each turns its arguments into a SecureProfile call and
// lets no exception out: a failure answers the default or 0.

#include <algorithm>
#include <cstring>
#include <optional>
#include <string>

#include "OrvInst.h"
#include "SecureProfile.h"

namespace {

std::string TextOf(const char* text) { return text ? text : ""; }

bool UsablePath(const char* path) { return path && *path; }

// Copies text into buffer, cut to size - 1 bytes without splitting a UTF-8
// character, and answers the number of bytes copied.
int32_t CopyOut(const std::string& text, char* buffer, uint32_t size) {
    if (!buffer || size == 0) return 0;
    std::size_t length = std::min<std::size_t>(text.size(), size - 1);
    if (length < text.size()) {
        // Step back over continuation bytes (10xxxxxx) to a character's start.
        while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) --length;
    }
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return static_cast<int32_t>(length);
}

}  // namespace

extern "C" {

int32_t OrvInst2_GetSecProfileInt(const char* section, const char* key, int32_t defaultValue,
                                  const char* path) {
    try {
        if (!key || !UsablePath(path)) return defaultValue;
        return orvinst::SecureProfile(path).GetInt(TextOf(section), key).value_or(defaultValue);
    } catch (...) {
        return defaultValue;
    }
}

int32_t OrvInst2_GetSecProfileString(const char* section, const char* key, const char* defaultValue,
                                     char* buffer, uint32_t size, const char* path) {
    try {
        std::optional<std::string> value;
        if (key && UsablePath(path))
            value = orvinst::SecureProfile(path).GetString(TextOf(section), key);
        if (!value) {
            CopyOut(TextOf(defaultValue), buffer, size);
            return 0;
        }
        return CopyOut(*value, buffer, size);
    } catch (...) {
        if (buffer && size > 0) buffer[0] = '\0';
        return 0;
    }
}

int32_t OrvInst2_WriteSecProfileInt(const char* section, const char* key, int32_t value,
                                    const char* path) {
    try {
        if (!key || !UsablePath(path)) return 0;
        return orvinst::SecureProfile(path).WriteInt(TextOf(section), key, value) ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

int32_t OrvInst2_WriteSecProfileString(const char* section, const char* key, const char* value,
                                       const char* path) {
    try {
        if (!key || !value || !UsablePath(path)) return 0;
        return orvinst::SecureProfile(path).WriteString(TextOf(section), key, value) ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

}  // extern "C"
