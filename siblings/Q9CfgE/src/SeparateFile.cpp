#include "SeparateFile.h"

#include "Q9CfgE.h"
#include "platform/ProblemReport.h"

namespace cfge {

SeparateFile::SeparateFile(std::string path) : m_file(std::move(path)) {}

bool SeparateFile::Load() {
    const StoreFile::Snapshot snapshot = m_file.Read();
    if (snapshot.readError != 0) return false;
    m_corrupt = snapshot.corrupt;
    m_copy.Reset(snapshot.data);
    return true;
}

uint32_t SeparateFile::Enum(uint32_t section, uint16_t index) const {
    return section == 0 ? SectionAt(index) : KeyAt(section, index);
}

uint32_t SeparateFile::SectionAt(uint16_t index) const {
    uint16_t seen = 0;
    for (const auto& [number, content] : m_copy.Values().AllSections()) {
        if (number == 0) continue;
        if (seen++ == index) return number;
    }
    return 0;
}

uint32_t SeparateFile::KeyAt(uint32_t section, uint16_t index) const {
    const StoreSection* content = m_copy.Values().FindSection(section);
    if (!content) return 0;
    uint16_t seen = 0;
    for (const auto& [key, value] : content->values) {
        if (key == 0) continue;
        if (seen++ == index) return key;
    }
    return (seen == index && !content->records.empty()) ? Q9CFGE_KEY_OBJECT_LIST : 0;
}

const ExportedValue* SeparateFile::Get(uint32_t section, uint32_t key) {
    m_exported = ExportedValue();
    if (key == Q9CFGE_KEY_OBJECT_LIST) {
        const std::vector<StoreRecord>& records = m_copy.Values().Records(section);
        if (records.empty()) return nullptr;
        m_exported.type = Q9CFGE_TYPE_OBJECT_LIST;
        m_exported.records = records;
        return &m_exported;
    }
    const StoreValue* value = m_copy.Values().Find(section, key);
    if (!value) return nullptr;
    m_exported.type = static_cast<uint32_t>(value->type);
    m_exported.value = *value;
    return &m_exported;
}

bool SeparateFile::Set(uint32_t section, uint32_t key, const void* value) {
    const auto* exported = static_cast<const ExportedValue*>(value);
    if (!exported || exported->magic != ExportedValue::kMagic) return false;
    if (section == Q9CFGE_ALL_SECTIONS) return false;
    const bool isList = exported->type == Q9CFGE_TYPE_OBJECT_LIST;
    if (isList != (key == Q9CFGE_KEY_OBJECT_LIST)) return false;
    if (isList) {
        return m_copy.Change(
            [&](StoreData& data) {
                data.SetRecords(section, exported->records);
                return true;
            },
            [section](ChangeSet& changes) { changes.ListChanged(section); });
    }
    return m_copy.Change(
        [&](StoreData& data) {
            data.Set(section, key, exported->value);
            return true;
        },
        [section, key](ChangeSet& changes) { changes.KeyChanged(section, key); });
}

bool SeparateFile::Close() {
    if (!m_copy.HasChanges()) return true;
    if (m_corrupt) {
        platform::ReportProblem("the store file " + m_file.Path() +
                                " cannot be parsed; the changes made to it are not written");
        return false;
    }
    return m_copy.Commit(m_file, std::nullopt);
}

}  // namespace cfge
