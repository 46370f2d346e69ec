#include "ZoneContent.h"

#include <algorithm>

namespace orvdmz {

void ZoneContent::Append(const std::string& owner, const std::vector<ZoneRecord>& records) {
    if (records.empty()) return;
    auto group = std::find_if(m_groups.begin(), m_groups.end(),
                              [&](const Group& g) { return g.owner == owner; });
    if (group == m_groups.end()) {
        m_groups.push_back(Group{owner, records});
        return;
    }
    group->records.insert(group->records.end(), records.begin(), records.end());
}

bool ZoneContent::RemoveOwner(const std::string& owner) {
    return std::erase_if(m_groups, [&](const Group& g) { return g.owner == owner; }) > 0;
}

}  // namespace orvdmz
