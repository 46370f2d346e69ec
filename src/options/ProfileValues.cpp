#include "options/ProfileValues.h"

#include "options/StoreKeys.h"

namespace {

// The profile's word of key, or null for a key that is no word of it; const
// for a const profile.
template <typename Profile>
auto SlotOf(Profile& profile, uint32_t key) -> decltype(&profile.m_dwOptions) {
    switch (key) {
        case CEK_ScanOptions: return &profile.m_dwOptions;
        case CEK_ScanExtra: return &profile.m_dwExtra;
        case CEK_ScanArchive: return &profile.m_nDepth;
        case CEK_ScanArchiveKinds: return &profile.m_dwKinds;
        case CEK_ScanPolicy: return &profile.m_dwPolicy;
        default: return nullptr;
    }
}

}  // namespace

bool ProfileValues::Holds(StoreAddress address, uint32_t key) const {
    return address.section == m_section && address.key == key;
}

uint32_t ProfileValues::Word(StoreAddress address) const {
    const uint32_t* slot = address.section == m_section ? SlotOf(m_profile, address.key) : nullptr;
    return slot ? *slot : ValueHome::Word(address);
}

std::string ProfileValues::Text(StoreAddress address) const {
    return Holds(address, CEK_ScanExtensions) ? m_profile.m_strExtensions
                                              : ValueHome::Text(address);
}

void ProfileValues::Write(StoreAddress address, uint32_t word) {
    uint32_t* slot = address.section == m_section ? SlotOf(m_profile, address.key) : nullptr;
    if (slot) {
        *slot = word;
    } else {
        ValueHome::Write(address, word);
    }
}

void ProfileValues::WriteText(StoreAddress address, const std::string& text) {
    if (Holds(address, CEK_ScanExtensions)) {
        m_profile.m_strExtensions = text;
    } else {
        ValueHome::WriteText(address, text);
    }
}
