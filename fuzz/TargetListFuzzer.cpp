// A target list as a schedule entry's copy or a caller hands it over: bytes
// with their size. The reader reads nothing past the size; the records it
// accepts before any fault encode back to the bytes they came from when they
// carry the spare byte, and a list read whole encodes to a list that reads
// back the same.

#include <cstddef>
#include <cstdint>
#include <string>

#include "support/FuzzCheck.h"
#include "targets/TargetList.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const ParsedTargetList parsed = ParseTargetList(data, size);
    const std::string encoded = EncodeTargetList(parsed.targets);
    const ParsedTargetList again = ParseTargetList(encoded.data(), encoded.size());
    fuzz::Check(again.problem == TargetListProblem::kNone, "an encoded list reads whole");
    fuzz::Check(again.targets == parsed.targets, "an encoded list reads back the same records");
    const int32_t needed = WriteTargetList(parsed.targets, nullptr, 0);
    fuzz::Check(needed == static_cast<int32_t>(encoded.size()),
                "the size needed is the encoded size");
    return 0;
}
