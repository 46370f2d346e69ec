#pragma once

// What a fuzz target asserts beyond the sanitizers: a property of the reader
// that must hold for every input (a round trip, a bound). A failed check
// names itself on the standard error the process started with (the runs
// close standard error to silence the readers' own problem reports) and
// aborts, so that libFuzzer keeps the input as a crash.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace fuzz {

void Check(bool holds, const char* what);

// The fuzz input as text, bytes unchanged.
std::string_view AsText(const uint8_t* data, size_t size);

}  // namespace fuzz
