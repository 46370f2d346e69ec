#pragma once

// The names of the store's sections and keys, as the file format writes them
// (CES_General, CEK_AlertSound, ...). Names compare ignoring the case of
// ASCII letters.

#include <cstdint>
#include <optional>
#include <string_view>

namespace cfge {

class KeyNames {
public:
    // The name of a section or key; empty when it has none.
    static std::string_view SectionName(uint32_t section);
    static std::string_view KeyName(uint32_t key);

    static std::optional<uint32_t> SectionByName(std::string_view name);
    static std::optional<uint32_t> KeyByName(std::string_view name);

    // A schedule entry (not the schedule template).
    static bool IsScheduleEntry(uint32_t section);
};

}  // namespace cfge
