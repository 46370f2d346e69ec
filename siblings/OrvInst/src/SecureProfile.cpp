#include "SecureProfile.h"

#include <algorithm>
#include <cctype>

#include "common/ProfileFile.h"
#include "common/SecretBox.h"
#include "platform/ProblemReport.h"

namespace orvinst {

SecureProfile::SecureProfile(std::string path) : m_path(std::move(path)) {}

bool SecureProfile::IsSecretKey(const std::string& key) {
    std::string lower = key;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower.find("password") != std::string::npos;
}

std::optional<int32_t> SecureProfile::GetInt(const std::string& section,
                                             const std::string& key) const {
    return sibling::ProfileFile::Load(m_path).GetInt(section, key);
}

std::optional<std::string> SecureProfile::GetString(const std::string& section,
                                                    const std::string& key) const {
    std::optional<std::string> value = sibling::ProfileFile::Load(m_path).Get(section, key);
    const std::string prefix = kSealedPrefix;
    // A secret written by hand in plain text is read as it stands.
    if (!value || !IsSecretKey(key) || value->compare(0, prefix.size(), prefix) != 0) return value;
    // A sealed value is never empty (it holds at least its nonce and tag).
    const std::string sealed = value->substr(prefix.size());
    std::optional<std::string> plain;
    if (!sealed.empty()) plain = sibling::SecretBox().Open(sealed);
    if (!plain) {
        platform::ReportProblem("the sealed value of [" + section + "] " + key + " in " + m_path +
                                " cannot be opened with this installation's key");
    }
    return plain;
}

bool SecureProfile::WriteInt(const std::string& section, const std::string& key,
                             int32_t value) const {
    return Write(section, key, std::to_string(value));
}

bool SecureProfile::WriteString(const std::string& section, const std::string& key,
                                const std::string& value) const {
    if (!IsSecretKey(key)) return Write(section, key, value);
    // Refused like any value with a line end, although its sealed form has none.
    if (value.find_first_of("\r\n") != std::string::npos) return false;
    const std::optional<std::string> sealed = sibling::SecretBox().Seal(value);
    if (!sealed) return false;
    return Write(section, key, kSealedPrefix + *sealed);
}

bool SecureProfile::Write(const std::string& section, const std::string& key,
                          const std::string& text) const {
    return sibling::ProfileFile::Update(
        m_path, [&](sibling::ProfileFile& profile) { return profile.Set(section, key, text); });
}

}  // namespace orvinst
