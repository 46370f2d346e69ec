#pragma once

// The silent wizard: the functions a new installation runs with, set with
// no dialog. It is also what the configuration wizard's Cancel leaves
// behind, since the wizard runs right after installation and the product
// must not stay without protection.
//
// Anything edited in the session is dropped first; the switch words are then
// written to the live store (no flush is needed), and each function the
// edition has is registered when this system can run it.

#include <cstdint>

// flags: the session flag word (DMF_*), edition bits included.
void ApplyWizardDefaults(uint32_t flags);
