#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvdmz {

// The owner a call acts for: its tag, and optionally a second tag whose
// records count as the same owner's (a product that changed its tag passes
// the old one, so that its old records are read and replaced as its own).
class OwnerTags {
public:
    // Null when owner is not a valid tag, or owner2 is neither null, empty
    // nor a valid tag.
    static std::optional<OwnerTags> From(const char* owner, const char* owner2);

    // A tag is 1 to 519 bytes (it must fit the record's 520-byte field with
    // its terminator), without control characters or square brackets, which
    // would break the zone file's group lines.
    static bool IsValidTag(std::string_view tag);

    const std::string& Tag() const { return m_tag; }

    // Whether records kept under tag are this owner's.
    bool Owns(const std::string& tag) const;

private:
    OwnerTags(std::string tag, std::string secondTag);

    std::string m_tag;
    std::string m_secondTag;  // empty: none
};

}  // namespace orvdmz
