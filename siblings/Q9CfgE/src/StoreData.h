#pragma once

// The content of one store file: sections by number, each with its values
// by key and its object list (records in order).
//
// Sections are shared between copies and copied only when one copy changes
// them, so that a working copy of a full configuration costs a few pointers
// until it is changed, and a change copies the one section it touches. A
// StoreData is used by one thread at a time (the store's mutex, or one
// handle), which makes use_count() a safe test of sharing.

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace cfge {

enum class ValueType : uint8_t { Dword = 1, Text = 2, Sealed = 3 };

struct StoreValue {
    ValueType type = ValueType::Dword;
    uint32_t word = 0;  // Dword
    std::string text;   // Text, or the base64 of a Sealed value
};

struct StoreRecord {
    uint8_t kind = 0;
    uint8_t flag = 0;
    std::string text;  // no NUL inside
};

struct StoreSection {
    std::map<uint32_t, StoreValue> values;
    std::vector<StoreRecord> records;
    // The section as StoreWriter wrote it last (empty when not written yet);
    // every change through StoreData clears it, so that a commit formats
    // only the sections that changed.
    mutable std::string written;

    bool Empty() const { return values.empty() && records.empty(); }
};

class StoreData {
public:
    // Never null; never empty. Read through these, change only through the
    // functions below.
    using Sections = std::map<uint32_t, std::shared_ptr<StoreSection>>;

    const Sections& AllSections() const { return m_sections; }

    // Null when absent.
    const StoreValue* Find(uint32_t section, uint32_t key) const;
    const StoreSection* FindSection(uint32_t section) const;

    void Set(uint32_t section, uint32_t key, StoreValue value);
    void Erase(uint32_t section, uint32_t key);
    void SetRecords(uint32_t section, std::vector<StoreRecord> records);
    // Replaces the record at index, or appends at index == count; false
    // (and nothing changed) for an index beyond the count.
    bool PutRecord(uint32_t section, size_t index, StoreRecord record);
    // Replaces the whole section; an empty one removes it.
    void SetSection(uint32_t section, StoreSection content);
    void EraseSection(uint32_t section);

    // The records of a section; an empty list when it has none.
    const std::vector<StoreRecord>& Records(uint32_t section) const;

private:
    // The section to change, made when missing and copied when shared. The
    // caller must call DropIfEmpty afterwards.
    StoreSection& Mutable(uint32_t section);
    void DropIfEmpty(uint32_t section);

    Sections m_sections;
};

}  // namespace cfge
