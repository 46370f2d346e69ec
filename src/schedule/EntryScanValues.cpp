#include "schedule/EntryScanValues.h"

#include "options/StoreKeys.h"
#include "schedule/ScheduleEntry.h"

namespace {

// The entry's word at address, or null; const for a const entry.
template <typename Entry>
auto SlotOf(Entry* entry, StoreAddress address) -> decltype(&entry->m_dwScanOptions) {
    if (entry == nullptr) return nullptr;
    switch (address.key) {
        case CEK_ScanOptions: return &entry->m_dwScanOptions;
        case CEK_ScanArchive: return &entry->m_dwArchive;
        case CEK_ScanArchiveKinds: return &entry->m_dwArchiveKinds;
        case CEK_ScanPolicy: return &entry->m_dwScanPolicy;
        default: return nullptr;
    }
}

}  // namespace

uint32_t EntryScanValues::Word(StoreAddress address) const {
    const uint32_t* slot = SlotOf(static_cast<const ScheduleEntry*>(m_entry), address);
    return slot ? *slot : 0;
}

std::string EntryScanValues::Text(StoreAddress address) const {
    if (m_entry == nullptr || address.key != CEK_ScanExtensions) return {};
    return m_entry->m_strExtensions;
}

void EntryScanValues::Write(StoreAddress address, uint32_t word) {
    if (uint32_t* slot = SlotOf(m_entry, address)) *slot = word;
}

void EntryScanValues::WriteText(StoreAddress address, const std::string& text) {
    if (m_entry != nullptr && address.key == CEK_ScanExtensions) m_entry->m_strExtensions = text;
}
