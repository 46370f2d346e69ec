#pragma once

// Exclusion zone records as the binding tests hand them to the library.

#include <cstdint>
#include <string>
#include <vector>

// One zone record: size, in use, flags, constant 1, owner field, path and 4
// zero bytes.
std::vector<uint8_t> ZoneRecord(const std::string& path, uint32_t flags);

// The record followed by the terminator.
std::vector<uint8_t> ZoneBuffer(const std::vector<uint8_t>& record);
