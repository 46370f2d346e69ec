#pragma once

#include <string>
#include <vector>

#include "ZoneRecord.h"

namespace orvdmz {

// The records of the zone grouped by owner tag, in the order the owners
// first appeared. An owner without records has no group.
class ZoneContent {
public:
    struct Group {
        std::string owner;
        std::vector<ZoneRecord> records;

        bool operator==(const Group&) const = default;
    };

    const std::vector<Group>& Groups() const { return m_groups; }

    // Adds records at the end of owner's group (made at the end when new).
    void Append(const std::string& owner, const std::vector<ZoneRecord>& records);

    // Drops owner's group; false when there was none.
    bool RemoveOwner(const std::string& owner);

    bool operator==(const ZoneContent&) const = default;

private:
    std::vector<Group> m_groups;
};

}  // namespace orvdmz
