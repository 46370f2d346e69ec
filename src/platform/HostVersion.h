#pragma once

// The host version the program is written against: the platform family
// ("NT" or the older "9x" line) and its version, from which the program
// derives four flags that enable or hide family-specific controls.
//
// On Linux the host counts as the NT family, version 5.1, unless the
// environment variable Q9_HOST_VERSION names another one ("nt-5.0",
// "9x-4.90", ...), which lets every variant of the pages be seen and tested.

#include <cstdint>
#include <optional>
#include <string_view>

namespace platform {

constexpr const char* kHostVersionVariable = "Q9_HOST_VERSION";

struct HostVersion {
    bool ntFamily;
    uint32_t major;
    uint32_t minor;
};

// The program's four host flags, each 1 or 0.
struct HostFlags {
    int32_t winNT;         // NT family
    int32_t winMeOrLater;  // not NT family, version 4.90 or above
    int32_t win2000;       // NT family, version exactly 5.0
    int32_t winXPOrLater;  // NT family, version 5.1 or above
};

// Accepts exactly "nt-<major>.<minor>" and "9x-<major>.<minor>": lower case
// prefix, both numbers decimal digits that fit 32 bits, nothing around.
// The minor number is a number, not a fraction: "4.90" is minor 90, above
// "4.10" (minor 10) and "4.9" (minor 9).
std::optional<HostVersion> ParseHostVersion(std::string_view text);

HostFlags FlagsFor(const HostVersion& version);

// Q9_HOST_VERSION when it is set and valid, otherwise NT family 5.1. An
// invalid value is reported (once for as long as it stays the same) and
// ignored.
HostVersion DetectHostVersion();

}  // namespace platform
