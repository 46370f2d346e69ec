#pragma once

// The names of the store's sections and keys as people read them (and as
// store files write them): CES_SystemScan, CEK_ScanArchive.

#include <cstdint>
#include <string>

// The section's name; a schedule entry is "schedule entry N"; a section
// without a name is its number in hexadecimal.
std::string StoreSectionName(uint32_t section);

// The key's name; the object list is "object list"; a key without a name is
// its number.
std::string StoreKeyName(uint32_t key);
