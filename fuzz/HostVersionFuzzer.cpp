// The host version override a tester or support person sets in the
// environment (Q9_HOST_VERSION="nt-5.0", "9x-4.90", ...). A text is taken
// only when it is exactly a family prefix and two decimal numbers; a version
// taken, written back in that form, is taken as the same version, and its
// flags agree with its family.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/HostVersion.h"
#include "support/FuzzCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text = fuzz::AsText(data, size);
    const std::optional<platform::HostVersion> version = platform::ParseHostVersion(text);
    if (!version) return 0;
    fuzz::Check(text.starts_with(version->ntFamily ? "nt-" : "9x-"), "the prefix names the family");
    const std::string written = std::string(version->ntFamily ? "nt-" : "9x-") +
                                std::to_string(version->major) + "." +
                                std::to_string(version->minor);
    const std::optional<platform::HostVersion> again = platform::ParseHostVersion(written);
    fuzz::Check(again && again->ntFamily == version->ntFamily && again->major == version->major &&
                    again->minor == version->minor,
                "a version written back is the same version");
    const platform::HostFlags flags = platform::FlagsFor(*version);
    fuzz::Check(flags.winNT == (version->ntFamily ? 1 : 0), "the NT flag follows the family");
    fuzz::Check(!(flags.winMeOrLater && (flags.win2000 || flags.winXPOrLater)),
                "no flag of both families");
    return 0;
}
