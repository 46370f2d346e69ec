#pragma once

// Texts and buffers handed out to callers, kept apart from the store's
// values: a reload of the file replaces the values but not these copies, so
// a returned pointer stays valid until that very value changes.

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace cfge {

class KeptCopies {
public:
    // A NUL-terminated copy of bytes kept under id; the same pointer as long
    // as the bytes under id stay the same.
    const char* Keep(uint64_t id, std::string_view bytes);

    static uint64_t IdOf(uint32_t section, uint32_t key) {
        return static_cast<uint64_t>(section) << 32 | key;
    }

private:
    std::map<uint64_t, std::string> m_copies;
};

}  // namespace cfge
