#include "ArgumentParsing.h"

#include <strings.h>

#include <cerrno>
#include <cstdlib>

std::optional<uint32_t> ParseNumber(const std::string& text) {
    if (text.empty() || text[0] == '-' || text[0] == '+' || text[0] == ' ') return std::nullopt;
    const bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
    errno = 0;
    char* end = nullptr;
    const unsigned long long value = std::strtoull(text.c_str(), &end, hex ? 16 : 10);
    if (errno != 0 || *end != '\0' || value > UINT32_MAX) return std::nullopt;
    return static_cast<uint32_t>(value);
}

platform::RegKey ParseRoot(const std::string& text) {
    const char* name = text.c_str();
    if (strcasecmp(name, "HKLM") == 0 || strcasecmp(name, "HKEY_LOCAL_MACHINE") == 0) {
        return platform::LocalMachine();
    }
    if (strcasecmp(name, "HKCU") == 0 || strcasecmp(name, "HKEY_CURRENT_USER") == 0) {
        return platform::CurrentUser();
    }
    return nullptr;
}
