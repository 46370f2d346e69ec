#include "ChangeSet.h"

#include <limits>

namespace cfge {

void ChangeSet::KeyChanged(uint32_t section, uint32_t key) { m_keys.emplace(section, key); }

void ChangeSet::ListChanged(uint32_t section) { m_lists.insert(section); }

void ChangeSet::EntryRemoved(uint32_t section) { m_removedEntries.insert(section); }

bool ChangeSet::Empty() const {
    return m_keys.empty() && m_lists.empty() && m_removedEntries.empty();
}

void ChangeSet::ApplyTo(const StoreData& source, StoreData& target,
                        std::optional<uint32_t> section) const {
    if (section) {
        ApplySection(source, target, *section);
        return;
    }
    std::set<uint32_t> sections(m_lists.begin(), m_lists.end());
    sections.insert(m_removedEntries.begin(), m_removedEntries.end());
    for (const auto& [changedSection, key] : m_keys) sections.insert(changedSection);
    for (const uint32_t changed : sections) ApplySection(source, target, changed);
}

// A removed entry goes first: keys written after the removal come back with
// the working copy's values.
void ChangeSet::ApplySection(const StoreData& source, StoreData& target, uint32_t section) const {
    if (m_removedEntries.count(section)) target.EraseSection(section);
    const auto first = m_keys.lower_bound({section, 0});
    const auto last = m_keys.upper_bound({section, std::numeric_limits<uint32_t>::max()});
    for (auto change = first; change != last; ++change) {
        const StoreValue* value = source.Find(section, change->second);
        if (value) {
            target.Set(section, change->second, *value);
        } else {
            target.Erase(section, change->second);
        }
    }
    if (m_lists.count(section) || m_removedEntries.count(section)) {
        target.SetRecords(section, source.Records(section));
    }
}

void ChangeSet::Forget(std::optional<uint32_t> section) {
    if (!section) {
        *this = ChangeSet();
        return;
    }
    m_lists.erase(*section);
    m_removedEntries.erase(*section);
    const auto first = m_keys.lower_bound({*section, 0});
    const auto last = m_keys.upper_bound({*section, std::numeric_limits<uint32_t>::max()});
    m_keys.erase(first, last);
}

}  // namespace cfge
