#include "targets/ExclusionTestMessage.h"

#include <cstdint>

#include "text/StringTable.h"
#include "text/TextFormat.h"

namespace {

constexpr uint32_t kByFolder = 57432;
constexpr uint32_t kByFile = 57433;
constexpr uint32_t kByExtension = 57434;
constexpr uint32_t kThisProducts = 57435;
constexpr uint32_t kAnotherProducts = 57436;
constexpr uint32_t kThroughNetworkPath = 57437;
constexpr uint32_t kNotExcluded = 57438;

uint32_t SentenceOf(ExclusionKind kind) {
    switch (kind) {
        case ExclusionKind::kFile: return kByFile;
        case ExclusionKind::kFolder: return kByFolder;
        case ExclusionKind::kExtension: return kByExtension;
    }
    return kByFolder;
}

std::string OwnerSentence(const ExclusionMatch& match) {
    if (match.row.owner.empty() || match.row.owner == kZoneOwnerTag) {
        return LoadString(kThisProducts);
    }
    return FormatResource(LoadString(kAnotherProducts).c_str(), match.row.owner.c_str());
}

}  // namespace

std::string ExclusionTestMessage(const std::string& path,
                                 const std::optional<ExclusionMatch>& match) {
    if (!match) return FormatResource(LoadString(kNotExcluded).c_str(), path.c_str());
    std::string text = FormatResource(LoadString(SentenceOf(match->kind)).c_str(), path.c_str(),
                                      match->row.text.c_str());
    text += "\n\n" + OwnerSentence(*match);
    if (!match->matchedPath.empty()) {
        text += "\n" +
                FormatResource(LoadString(kThroughNetworkPath).c_str(), match->matchedPath.c_str());
    }
    return text;
}
