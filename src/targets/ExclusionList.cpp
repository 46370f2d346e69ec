#include "targets/ExclusionList.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace {

constexpr uint32_t kNothingSelected = 1003;
constexpr uint32_t kAlreadyExists = 1005;
constexpr char kExtensionPrefix[] = "*.";

unsigned char Lower(char c) {
    return static_cast<unsigned char>(std::tolower(static_cast<unsigned char>(c)));
}

bool LessIgnoringCase(const std::string& a, const std::string& b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return Lower(x) < Lower(y); });
}

bool EqualIgnoringCase(const std::string& a, const std::string& b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](char x, char y) { return Lower(x) == Lower(y); });
}

bool IsUsers(const ExclusionRow& row) { return (row.flags & kZoneUser) != 0; }

std::vector<std::string> SplitAtSlashes(const std::string& text) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, '/');) {
        if (!part.empty()) parts.push_back(part);
    }
    return parts;
}

}  // namespace

const std::vector<ExclusionRow>& ExclusionList::Rows() const { return m_rows; }

bool ExclusionList::Empty() const { return m_rows.empty(); }

ExclusionAddition ExclusionList::Add(const std::string& text, uint32_t flags, bool use) {
    if (text.empty()) return {false, kNothingSelected};
    if (flags & kZonePath) {
        if (Contains(text, flags)) return {false, kAlreadyExists};
        Insert({text, flags, use, {}});
        return {true, 0};
    }
    if (!(flags & kZoneExtension)) return {};
    ExclusionAddition addition;
    for (const std::string& extension : SplitAtSlashes(text)) {
        const std::string rowText = kExtensionPrefix + extension;
        if (Contains(rowText, flags)) {
            addition.messageId = kAlreadyExists;
            continue;
        }
        Insert({rowText, flags, use, {}});
        addition.added = true;
    }
    return addition;
}

bool ExclusionList::Contains(const std::string& text, uint32_t flags) const {
    return std::any_of(m_rows.begin(), m_rows.end(), [&](const ExclusionRow& row) {
        return row.flags == flags && EqualIgnoringCase(row.text, text);
    });
}

ExclusionDeletion ExclusionList::DeleteAt(std::size_t index) {
    if (index >= m_rows.size()) return ExclusionDeletion::kNone;
    if (!IsUsers(m_rows[index])) return ExclusionDeletion::kNotTheUsers;
    m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(index));
    return ExclusionDeletion::kDeleted;
}

bool ExclusionList::DeleteAllOwn() {
    const auto removed = std::erase_if(
        m_rows, [](const ExclusionRow& row) { return IsUsers(row) && !(row.flags & kZoneFixed); });
    return removed != 0;
}

std::vector<ZoneRecord> ExclusionList::Records() const {
    std::vector<ZoneRecord> records;
    for (const ExclusionRow& row : m_rows) {
        if ((row.flags & kZonePath) && IsUsers(row)) {
            records.push_back({row.use ? 1u : 0u, row.flags, {}, row.text});
        }
    }
    return records;
}

std::string ExclusionList::ExtensionText() const {
    std::string text;
    for (const ExclusionRow& row : m_rows) {
        if (!(row.flags & kZoneExtension)) continue;
        if (!text.empty()) text += '/';
        text += row.text.substr(std::min<std::size_t>(2, row.text.size()));
    }
    return text;
}

void ExclusionList::SetUse(bool use) {
    for (ExclusionRow& row : m_rows) {
        if (IsUsers(row)) row.use = use;
    }
}

void ExclusionList::Fill(const std::vector<ZoneRecord>& records, const std::string& extensions,
                         bool use) {
    m_rows.clear();
    for (const ZoneRecord& record : records) {
        if (!record.path.empty()) {
            Insert({record.path, record.flags, record.inUse != 0, record.owner});
        }
    }
    Add(extensions, kUserExtensions, use);
}

// Before the first row whose text sorts after the new one: rows of equal
// text keep the order they came in.
void ExclusionList::Insert(ExclusionRow row) {
    const auto place = std::upper_bound(m_rows.begin(), m_rows.end(), row,
                                        [](const ExclusionRow& a, const ExclusionRow& b) {
                                            return LessIgnoringCase(a.text, b.text);
                                        });
    m_rows.insert(place, std::move(row));
}
