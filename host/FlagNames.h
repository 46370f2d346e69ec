#pragma once

// Session flags on the command line: numbers (decimal or 0x hex) and names,
// joined by ',' or '|': "silent,no-authenticate", "DMF_Master|0x200".

#include <cstdint>
#include <optional>
#include <string>

std::optional<uint32_t> ParseFlags(const std::string& text);

// The names ParseFlags knows, for the usage text.
std::string FlagNameList();
