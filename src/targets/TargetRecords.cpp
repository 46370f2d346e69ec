#include "targets/TargetRecords.h"

std::vector<Target> ReadTargets(uint32_t section) {
    std::vector<Target> targets;
    for (const ObjectRecord& record : ReadObjectList(section))
        targets.push_back({record.kind, record.text});
    return targets;
}

std::vector<ObjectRecord> TargetRecords(const std::vector<Target>& targets) {
    std::vector<ObjectRecord> records;
    for (const Target& target : targets) records.push_back({target.kind, target.text});
    return records;
}
