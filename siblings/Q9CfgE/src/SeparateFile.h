#pragma once

// A store file opened apart from the live store (Q9CfgE_Create): its values
// are walked with Enum, copied value by value with GetStr/SetStr (also from
// one file into another, keeping each value's type), and the changes are
// written back on Close.

#include <cstdint>
#include <string>
#include <vector>

#include "StoreData.h"
#include "StoreFile.h"
#include "WorkingCopy.h"

namespace cfge {

// What GetStr hands out: a typed value, opaque to callers.
struct ExportedValue {
    static constexpr uint32_t kMagic = 0x51394556;  // tells our values from stray pointers

    uint32_t magic = kMagic;
    uint32_t type = 0;  // Q9CFGE_TYPE_*
    StoreValue value;
    std::vector<StoreRecord> records;
};

class SeparateFile {
public:
    explicit SeparateFile(std::string path);

    // Reads the file; a missing file is an empty store, an unparseable one
    // reads as empty and refuses to be written. False when it cannot be read.
    bool Load();

    // Section 0: the index-th section (section 0 itself is skipped, since 0
    // ends the walk); otherwise the index-th key of the section, its object
    // list last as Q9CFGE_KEY_OBJECT_LIST. 0 past the end.
    uint32_t Enum(uint32_t section, uint16_t index) const;

    // Null when absent. Valid until the next Get.
    const ExportedValue* Get(uint32_t section, uint32_t key);
    bool Set(uint32_t section, uint32_t key, const void* value);

    // Writes the changes; false (reported) when the file could not be parsed
    // or written. Without changes nothing is written.
    bool Close();

private:
    uint32_t SectionAt(uint16_t index) const;
    uint32_t KeyAt(uint32_t section, uint16_t index) const;

    StoreFile m_file;
    WorkingCopy m_copy;
    bool m_corrupt = false;
    ExportedValue m_exported;
};

}  // namespace cfge
