#pragma once

// What a working copy changed since it was loaded: the keys set or removed,
// the object lists rewritten, the schedule entries removed. A commit applies exactly these
// changes to a fresh read of the file, so that writes other processes made
// meanwhile to anything else survive.

#include <cstdint>
#include <optional>
#include <set>
#include <utility>

#include "StoreData.h"

namespace cfge {

class ChangeSet {
public:
    void KeyChanged(uint32_t section, uint32_t key);
    void ListChanged(uint32_t section);
    void EntryRemoved(uint32_t section);

    bool Empty() const;

    // Applies the changes of one section (or of all when section is empty),
    // taking the values from source, to target.
    void ApplyTo(const StoreData& source, StoreData& target,
                 std::optional<uint32_t> section) const;

    // Drops the changes of one section (or all) after they were committed.
    void Forget(std::optional<uint32_t> section);

private:
    void ApplySection(const StoreData& source, StoreData& target, uint32_t section) const;

    std::set<std::pair<uint32_t, uint32_t>> m_keys;
    std::set<uint32_t> m_lists;
    std::set<uint32_t> m_removedEntries;
};

}  // namespace cfge
