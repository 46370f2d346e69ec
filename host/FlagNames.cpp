#include "FlagNames.h"

#include <strings.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <sstream>

#include "q9cfgul.h"

namespace {

struct FlagName {
    const char* shortName;
    const char* longName;
    uint32_t bits;
};

constexpr FlagName kFlagNames[] = {
    {"keep-monitor", "DMF_PolicyKeepMonitor", DMF_PolicyKeepMonitor},
    {"title-shows-page", "DMF_TitleShowsPage", DMF_TitleShowsPage},
    {"master", "DMF_Master", DMF_Master},
    {"assume-nt", "DMF_AssumeNT", DMF_AssumeNT},
    {"remove-outlook", "DMF_RemoveOutlookMon", DMF_RemoveOutlookMon},
    {"remove-internet", "DMF_RemoveInternetMon", DMF_RemoveInternetMon},
    {"remove-pop", "DMF_RemovePopMon", DMF_RemovePopMon},
    {"remove-security", "DMF_RemoveSecurity", DMF_RemoveSecurity},
    {"remove-exclusions", "DMF_RemoveNonScanSector", DMF_RemoveNonScanSector},
    {"light", "DMF_IsLight", DMF_IsLight},
    {"silent", "DMF_Silent", DMF_Silent},
    {"no-authenticate", "DMF_NoAuthenticate", DMF_NoAuthenticate},
};

std::optional<uint32_t> ParseOne(const std::string& word) {
    for (const FlagName& flag : kFlagNames) {
        if (strcasecmp(word.c_str(), flag.shortName) == 0 ||
            strcasecmp(word.c_str(), flag.longName) == 0) {
            return flag.bits;
        }
    }
    if (word.empty() || word[0] == '-' || word[0] == '+' || word[0] == ' ') return std::nullopt;
    errno = 0;
    char* end = nullptr;
    const unsigned long long value = std::strtoull(word.c_str(), &end, 0);
    if (errno != 0 || *end != '\0' || value > UINT32_MAX) return std::nullopt;
    return static_cast<uint32_t>(value);
}

}  // namespace

std::optional<uint32_t> ParseFlags(const std::string& text) {
    std::string joined = text;
    std::replace(joined.begin(), joined.end(), '|', ',');
    uint32_t flags = 0;
    std::string word;
    std::istringstream words(joined);
    bool any = false;
    while (std::getline(words, word, ',')) {
        const std::optional<uint32_t> bits = ParseOne(word);
        if (!bits) return std::nullopt;
        flags |= *bits;
        any = true;
    }
    if (!any) return std::nullopt;
    return flags;
}

std::string FlagNameList() {
    std::string names;
    for (const FlagName& flag : kFlagNames) {
        if (!names.empty()) names += ", ";
        names += flag.shortName;
    }
    return names;
}
