#include "RuleManager.h"

#include "MailMessage.h"
#include "RuleFile.h"
#include "common/InstallDirectory.h"

namespace q9msgflt {

RuleManager& RuleManager::Instance() {
    static RuleManager manager;
    return manager;
}

bool RuleManager::Acquire() {
    std::lock_guard lock(m_mutex);
    if (m_references > 0) {
        ++m_references;
        return true;
    }
    const std::string directory = sibling::InstallDirectory();
    if (directory.empty()) return false;
    std::string path = directory + RuleFile::kFileName;
    auto rules = RuleFile::Load(path);
    if (!rules) return false;
    m_filePath = std::move(path);
    m_rules = std::move(*rules);
    m_references = 1;
    return true;
}

bool RuleManager::Release() {
    std::lock_guard lock(m_mutex);
    if (m_references == 0) return false;
    if (--m_references == 0) {
        m_rules.clear();
        m_filePath.clear();
    }
    return true;
}

bool RuleManager::Reload() {
    std::lock_guard lock(m_mutex);
    if (m_references == 0) return false;
    auto rules = RuleFile::Load(m_filePath);
    if (!rules) return false;
    m_rules = std::move(*rules);
    return true;
}

bool RuleManager::Write() const {
    std::lock_guard lock(m_mutex);
    return m_references > 0 && RuleFile::Save(m_filePath, m_rules);
}

std::optional<std::size_t> RuleManager::Count() const {
    std::lock_guard lock(m_mutex);
    if (m_references == 0) return std::nullopt;
    return m_rules.size();
}

std::optional<std::vector<SpamRule>> RuleManager::Rules() const {
    std::lock_guard lock(m_mutex);
    if (m_references == 0) return std::nullopt;
    return m_rules;
}

bool RuleManager::SetRules(std::vector<SpamRule> rules) {
    std::lock_guard lock(m_mutex);
    if (m_references == 0) return false;
    m_rules = std::move(rules);
    return true;
}

std::optional<RuleAction> RuleManager::Apply(const MailMessage& message) const {
    std::lock_guard lock(m_mutex);
    for (const SpamRule& rule : m_rules) {
        if (rule.enabled && rule.Matches(message)) return rule.action;
    }
    return std::nullopt;
}

}  // namespace q9msgflt
