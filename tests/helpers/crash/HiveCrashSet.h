#pragma once

// The crash trials' set in the registry stand-in's HKLM hive of the registry
// directory named by Q9_REGISTRY_DIR: 24 values under
// HKLM\Software\Q9CrashTrials, "Value00" to "Value23"; even ones hold the
// generation as a DWORD, odd ones an 800-byte text derived from it.

#include <cstdint>

#include "helpers/crash/CrashVerdict.h"

namespace crash {

// Writes generation into every value of the set, one RegSetValue after the
// other in the order of the set, as the product writes registry values.
// False when a call failed.
bool WriteHiveGeneration(uint32_t generation);

// Reads the set back. Every value is a write of its own (the registry has no
// call that changes several values at once), so the set may hold old + 1 in
// its first values and old in the rest; each value must be whole.
CrashVerdict CheckHiveGeneration(uint32_t old);

}  // namespace crash
