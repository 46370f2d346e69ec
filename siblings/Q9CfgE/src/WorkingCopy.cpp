#include "WorkingCopy.h"

namespace cfge {

WorkingCopy::WorkingCopy() { Reset(std::make_shared<const StoreData>()); }

void WorkingCopy::Reset(std::shared_ptr<const StoreData> base) {
    m_base = std::move(base);
    m_values = m_base;
    m_owned.reset();
    m_changes = ChangeSet();
}

void WorkingCopy::LoadLevel(const StoreData& level) {
    StoreData& values = Mutable();
    for (const auto& [number, section] : level.AllSections()) {
        for (const auto& [key, value] : section->values) {
            values.Set(number, key, value);
            m_changes.KeyChanged(number, key);
        }
        if (!section->records.empty()) {
            values.SetRecords(number, section->records);
            m_changes.ListChanged(number);
        }
    }
}

StoreData& WorkingCopy::Mutable() {
    if (!m_owned) {
        m_owned = std::make_shared<StoreData>(*m_values);
        m_values = m_owned;
    }
    return *m_owned;
}

bool WorkingCopy::Change(const StoreFile::Change& change,
                         const std::function<void(ChangeSet&)>& note) {
    if (!change(Mutable())) return false;
    note(m_changes);
    return true;
}

bool WorkingCopy::Commit(StoreFile& file, std::optional<uint32_t> section) {
    if (m_changes.Empty()) return true;
    std::shared_ptr<const StoreData> written;
    bool fromBase = false;
    const bool committed = file.Replace([&](const std::shared_ptr<const StoreData>& current) {
        fromBase = current == m_base;
        if (!section && fromBase) {
            written = m_values;
        } else {
            auto next = std::make_shared<StoreData>(*current);
            m_changes.ApplyTo(*m_values, *next, section);
            written = std::move(next);
        }
        return written;
    });
    if (!committed) return false;
    m_changes.Forget(section);
    if (!section) {
        // The file now holds exactly these values, shared with its cache.
        m_values = written;
        m_owned.reset();
    }
    // The working copy is the written file plus the remaining changes only
    // when nobody else had changed the file.
    m_base = (fromBase || !section) ? written : nullptr;
    return true;
}

}  // namespace cfge
