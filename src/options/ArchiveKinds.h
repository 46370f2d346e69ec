#pragma once

// The archive options of a scan profile as the compressed files tab shows
// them: the depth of multi-compressed files (key 11) and the kinds of archive
// to open (key 12), one row per kind.

#include <cstdint>

// Key 12 when every kind is opened, whatever the rows say.
constexpr uint32_t kAllArchiveKinds = 0xFFFFFFFF;

// The rows of the kinds list; row n is bit n of key 12.
constexpr int kArchiveKindRows = 27;
constexpr uint32_t kArchiveKindRowBits = (uint32_t{1} << kArchiveKindRows) - 1;

// The deepest level count of key 11; 0 is "Unlimited".
constexpr uint32_t kMaxArchiveDepth = 10;

// The caption of a row ("Ace" to "SFX"); null outside the rows.
const char* ArchiveKindName(int row);

// Item of the depth combo for a stored depth: its value, or item 0
// "Unlimited" for a depth the combo cannot show. The item's index is the
// value stored back.
uint32_t DepthComboIndex(uint32_t depth);

// The kinds list with its radio pair: "All compressed file types", or the
// rows checked one by one (bit n is row n).
struct ArchiveKindsView {
    bool allTypes = true;
    uint32_t checkedRows = kArchiveKindRowBits;

    bool operator==(const ArchiveKindsView&) const = default;
};

// All kinds show every row checked under "All compressed file types"; any
// other value, 0 included, shows the rows by their bits.
ArchiveKindsView ArchiveKindsViewOf(uint32_t kinds);

// Key 12 from the view: all kinds under "All compressed file types", else
// the checked rows.
uint32_t CollectArchiveKinds(const ArchiveKindsView& view);
