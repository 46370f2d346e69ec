#pragma once

// The values of a scan profile that the advanced scan dialog edits, kept in
// the dialog instead of the store until its OK. Each tab page shows and saves
// them as a home of its own (CPageBinder::SetHome): whatever section a tab's
// controls are bound to (the section whose defaults it reads), the scan
// words, depth, kinds and text are these, and the kinds of harmful programs
// are CEK_MacroOptions.

#include <cstdint>
#include <string>

#include "options/StoreValues.h"

class AdvancedScanValues : public ValueHome {
public:
    uint32_t options = 0;    // key 10
    uint32_t extra = 0;      // key 53
    uint32_t depth = 0;      // key 11
    uint32_t kinds = 0;      // key 12
    std::string extensions;  // key 13
    uint32_t harmful = 0;    // CEK_MacroOptions of section 2
    // Not a value: the compressed files tab hides "Incremental Scan" and
    // saves its bit clear.
    bool noIncremental = false;

    // Addresses that are none of the above read as 0 or empty, and writes
    // to them are dropped.
    uint32_t Word(StoreAddress address) const override;
    std::string Text(StoreAddress address) const override;
    void Write(StoreAddress address, uint32_t word) override;
    void WriteText(StoreAddress address, const std::string& text) override;
};

// The share of a scan profile that tabs can change: the bits of the two scan
// words, the depth and kinds (together), the text, and the bits of the
// harmful kinds.
struct AdvancedScanShare {
    uint32_t options = 0;
    uint32_t extra = 0;
    bool archive = false;
    bool extensions = false;
    uint32_t harmful = 0;

    bool operator==(const AdvancedScanShare&) const = default;
    AdvancedScanShare& operator|=(const AdvancedScanShare& other);
};
