#pragma once

#include <cstdint>
#include <string>

namespace orvdmz {

// One entry of the zone: a path that scans leave alone.
struct ZoneRecord {
    uint32_t inUse = 0;
    uint32_t flags = 0;
    std::string path;

    bool operator==(const ZoneRecord&) const = default;
};

}  // namespace orvdmz
