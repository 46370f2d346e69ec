#pragma once

// A policy's switch word applied to the registration of one function.

#include <cstdint>

// Brings one function's registration into line with a policy's switch word
// (word, mask) and its bit:
//   mask lacks the bit:  nothing at all;
//   word lacks the bit:  Unregister (with option);
//   otherwise:           CanBeRegister, then Register when it may be;
//                        when it may not, the bit is cleared in the store,
//                        so that the store never claims a function that
//                        cannot run.
void ApplySwitch(uint32_t word, uint32_t mask, uint32_t bit, int32_t code, int32_t option);
