#pragma once

// Numbers and names on the administrator's command line.

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Registry.h"

// A 32-bit number in decimal or with 0x in hex; nullopt for anything else.
std::optional<uint32_t> ParseNumber(const std::string& text);

// HKLM, HKEY_LOCAL_MACHINE, HKCU or HKEY_CURRENT_USER, any case; null otherwise.
platform::RegKey ParseRoot(const std::string& text);
