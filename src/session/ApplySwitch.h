#pragma once

// A policy's switch word applied to the registration of one function.

#include <cstdint>

// What the switch word (word, mask) asks of one function's registration:
//   mask lacks the bit:  nothing at all;
//   word lacks the bit:  unregister;
//   otherwise:           register when CanBeRegister allows it; when it
//                        does not, clear the bit in the store, so that the
//                        store never claims a function that cannot run.
enum class SwitchStep { kNone, kUnregister, kRegister, kClearBit };

// The step for one function; asks CanBeRegister when the word has the bit.
SwitchStep SwitchStepOf(uint32_t word, uint32_t mask, uint32_t bit, int32_t code);

// Carries out the step of SwitchStepOf (Unregister with option).
void ApplySwitch(uint32_t word, uint32_t mask, uint32_t bit, int32_t code, int32_t option);
