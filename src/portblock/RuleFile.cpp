#include "portblock/RuleFile.h"

#include <string_view>

#include "platform/AtomicFile.h"

CRuleFile::CRuleFile(std::string directory) : m_directory(std::move(directory)) {}

int32_t CRuleFile::WriteUserRules(const void* records, int32_t count) const {
    if (count < 0 || (count > 0 && !records)) return 0;
    const std::string_view bytes(static_cast<const char*>(records),
                                 static_cast<std::size_t>(count) * kRecordSize);
    // Replaced as a whole, so that the blocking component never reads half a
    // rule list.
    int error = 0;
    return platform::WriteFileAtomically(m_directory + kUserRules, bytes, &error) ? 1 : 0;
}
