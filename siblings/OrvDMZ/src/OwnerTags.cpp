#include "OwnerTags.h"

#include <utility>

#include "OrvDMZ.h"

namespace orvdmz {

std::optional<OwnerTags> OwnerTags::From(const char* owner, const char* owner2) {
    if (!owner || !IsValidTag(owner)) return std::nullopt;
    std::string second = owner2 ? owner2 : "";
    if (!second.empty() && !IsValidTag(second)) return std::nullopt;
    return OwnerTags(owner, std::move(second));
}

bool OwnerTags::IsValidTag(std::string_view tag) {
    if (tag.empty() || tag.size() >= ORVDMZ_OWNER_SIZE) return false;
    for (const char c : tag) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F || c == '[' || c == ']') return false;
    }
    return true;
}

bool OwnerTags::Owns(const std::string& tag) const {
    return tag == m_tag || (!m_secondTag.empty() && tag == m_secondTag);
}

OwnerTags::OwnerTags(std::string tag, std::string secondTag)
    : m_tag(std::move(tag)), m_secondTag(std::move(secondTag)) {}

}  // namespace orvdmz
