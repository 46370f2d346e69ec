#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "OwnerTags.h"
#include "ZoneContent.h"

namespace orvdmz {

// The zone kept in one file. Every operation reads the file afresh; changes
// are made under an exclusive lock on "<file>.lock" and written atomically,
// so that several processes can share the zone. A missing file is an empty
// zone. A file that cannot be parsed is reported and left as it is: no
// operation works on it until it is repaired or removed.
class Zone {
public:
    static constexpr const char* kFileName = "OrvDMZ.zone";

    explicit Zone(std::string filePath);

    // See OrvDMZ_EnumDMZA.
    int32_t Enumerate(const OwnerTags& owner, void* buffer, int32_t size) const;

    // Appends the records of a terminated buffer under owner's tag.
    bool Add(const OwnerTags& owner, const void* records) const;

    // Removes owner's records.
    bool Delete(const OwnerTags& owner) const;

private:
    std::optional<ZoneContent> Read() const;
    bool Write(const ZoneContent& content) const;

    std::string m_filePath;
};

}  // namespace orvdmz
