#include "options/ArchiveKinds.h"

#include <array>

namespace {

constexpr std::array<const char*, kArchiveKindRows> kNames = {
    "Ace", "Alz", "Arc", "Arj", "B64", "Bh",  "Bhx", "Bz2", "Cab",
    "Enc", "Gz",  "Ha",  "Hqx", "Ice", "Jar", "Lha", "Lzh", "Mime",
    "Pak", "Rar", "Tar", "Uue", "Xxe", "Z",   "Zip", "Zoo", "SFX",
};

}  // namespace

const char* ArchiveKindName(int row) {
    if (row < 0 || row >= kArchiveKindRows) return nullptr;
    return kNames[static_cast<std::size_t>(row)];
}

uint32_t DepthComboIndex(uint32_t depth) { return depth > kMaxArchiveDepth ? 0 : depth; }

ArchiveKindsView ArchiveKindsViewOf(uint32_t kinds) {
    if (kinds == kAllArchiveKinds) return {true, kArchiveKindRowBits};
    return {false, kinds & kArchiveKindRowBits};
}

uint32_t CollectArchiveKinds(const ArchiveKindsView& view) {
    return view.allTypes ? kAllArchiveKinds : (view.checkedRows & kArchiveKindRowBits);
}
