#pragma once

// The edition bits of the session flag word that the secure profile adds.

#include <cstdint>

// Reads the edition values of the secure profile in their fixed order and
// returns flags with their bits added (never removed). Sets g_nMasterType to
// 2 when the master edition came from the profile, else 0.
uint32_t AddEditionFlags(uint32_t flags);
