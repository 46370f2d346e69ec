#include "platform/HostVersion.h"

#include <charconv>
#include <cstdlib>
#include <mutex>
#include <string>
#include <utility>

#include "platform/ProblemReport.h"

namespace platform {
namespace {

constexpr HostVersion kLinuxHostVersion{true, 5, 1};

// Reads the decimal number that makes up all of text.
std::optional<uint32_t> ParseNumber(std::string_view text) {
    if (text.empty()) return std::nullopt;
    for (const char c : text) {
        if (c < '0' || c > '9') return std::nullopt;
    }
    uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

bool AtLeast(const HostVersion& version, uint32_t major, uint32_t minor) {
    return std::pair(version.major, version.minor) >= std::pair(major, minor);
}

// Reports an invalid override once, not at every call that reads it.
void ReportInvalidOverride(const std::string& value) {
    static std::mutex mutex;
    static std::string lastReported;
    static bool reported = false;
    const std::lock_guard lock(mutex);
    if (reported && lastReported == value) return;
    reported = true;
    lastReported = value;
    ReportProblem(std::string(kHostVersionVariable) + "=\"" + value +
                  "\" is not a host version (nt-<major>.<minor> or 9x-<major>.<minor>); ignored");
}

}  // namespace

std::optional<HostVersion> ParseHostVersion(std::string_view text) {
    bool ntFamily = false;
    if (text.starts_with("nt-")) {
        ntFamily = true;
    } else if (!text.starts_with("9x-")) {
        return std::nullopt;
    }
    text.remove_prefix(3);
    const auto dot = text.find('.');
    if (dot == std::string_view::npos) return std::nullopt;
    const auto major = ParseNumber(text.substr(0, dot));
    const auto minor = ParseNumber(text.substr(dot + 1));
    if (!major || !minor) return std::nullopt;
    return HostVersion{ntFamily, *major, *minor};
}

HostFlags FlagsFor(const HostVersion& version) {
    const bool nt = version.ntFamily;
    HostFlags flags{};
    flags.winNT = nt ? 1 : 0;
    flags.winMeOrLater = !nt && AtLeast(version, 4, 90) ? 1 : 0;
    flags.win2000 = nt && version.major == 5 && version.minor == 0 ? 1 : 0;
    flags.winXPOrLater = nt && AtLeast(version, 5, 1) ? 1 : 0;
    return flags;
}

HostVersion DetectHostVersion() {
    const char* value = std::getenv(kHostVersionVariable);
    if (!value) return kLinuxHostVersion;
    if (const auto version = ParseHostVersion(value)) return *version;
    ReportInvalidOverride(value);
    return kLinuxHostVersion;
}

}  // namespace platform
