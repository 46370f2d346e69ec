#include "StoreData.h"

namespace cfge {

const StoreValue* StoreData::Find(uint32_t section, uint32_t key) const {
    const StoreSection* found = FindSection(section);
    if (!found) return nullptr;
    const auto value = found->values.find(key);
    return value == found->values.end() ? nullptr : &value->second;
}

const StoreSection* StoreData::FindSection(uint32_t section) const {
    const auto found = m_sections.find(section);
    return found == m_sections.end() ? nullptr : found->second.get();
}

StoreSection& StoreData::Mutable(uint32_t section) {
    std::shared_ptr<StoreSection>& content = m_sections[section];
    if (!content) {
        content = std::make_shared<StoreSection>();
    } else if (content.use_count() > 1) {
        content = std::make_shared<StoreSection>(*content);
    }
    content->written.clear();
    return *content;
}

void StoreData::DropIfEmpty(uint32_t section) {
    const auto found = m_sections.find(section);
    if (found != m_sections.end() && found->second->Empty()) m_sections.erase(found);
}

void StoreData::Set(uint32_t section, uint32_t key, StoreValue value) {
    Mutable(section).values[key] = std::move(value);
}

void StoreData::Erase(uint32_t section, uint32_t key) {
    const StoreSection* found = FindSection(section);
    if (!found || !found->values.count(key)) return;
    Mutable(section).values.erase(key);
    DropIfEmpty(section);
}

void StoreData::SetRecords(uint32_t section, std::vector<StoreRecord> records) {
    if (records.empty() && !FindSection(section)) return;
    Mutable(section).records = std::move(records);
    DropIfEmpty(section);
}

bool StoreData::PutRecord(uint32_t section, size_t index, StoreRecord record) {
    if (index > Records(section).size()) return false;
    std::vector<StoreRecord>& records = Mutable(section).records;
    if (index < records.size()) {
        records[index] = std::move(record);
    } else {
        records.push_back(std::move(record));
    }
    return true;
}

void StoreData::SetSection(uint32_t section, StoreSection content) {
    if (content.Empty()) {
        m_sections.erase(section);
    } else {
        m_sections[section] = std::make_shared<StoreSection>(std::move(content));
    }
}

void StoreData::EraseSection(uint32_t section) { m_sections.erase(section); }

const std::vector<StoreRecord>& StoreData::Records(uint32_t section) const {
    static const std::vector<StoreRecord> kNone;
    const StoreSection* found = FindSection(section);
    return found ? found->records : kNone;
}

}  // namespace cfge
