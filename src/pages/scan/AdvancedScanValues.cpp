#include "pages/scan/AdvancedScanValues.h"

#include "options/StoreKeys.h"

namespace {

constexpr StoreAddress kHarmfulKinds = {CES_Macro, CEK_MacroOptions};

// The word of values at address, or null; const for const values.
template <typename Values>
auto SlotOf(Values& values, StoreAddress address) -> decltype(&values.options) {
    if (address == kHarmfulKinds) return &values.harmful;
    switch (address.key) {
        case CEK_ScanOptions: return &values.options;
        case CEK_ScanExtra: return &values.extra;
        case CEK_ScanArchive: return &values.depth;
        case CEK_ScanArchiveKinds: return &values.kinds;
        default: return nullptr;
    }
}

}  // namespace

uint32_t AdvancedScanValues::Word(StoreAddress address) const {
    const uint32_t* slot = SlotOf(*this, address);
    return slot ? *slot : 0;
}

std::string AdvancedScanValues::Text(StoreAddress address) const {
    return address.key == CEK_ScanExtensions ? extensions : std::string();
}

void AdvancedScanValues::Write(StoreAddress address, uint32_t word) {
    if (uint32_t* slot = SlotOf(*this, address)) *slot = word;
}

void AdvancedScanValues::WriteText(StoreAddress address, const std::string& text) {
    if (address.key == CEK_ScanExtensions) extensions = text;
}

AdvancedScanShare& AdvancedScanShare::operator|=(const AdvancedScanShare& other) {
    options |= other.options;
    extra |= other.extra;
    archive = archive || other.archive;
    extensions = extensions || other.extensions;
    harmful |= other.harmful;
    return *this;
}
