#pragma once

#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "SpamRule.h"

namespace q9msgflt {

class MailMessage;

// The process-wide rule set behind the C functions. It is reference
// counted: the first Acquire loads the rules file, the last Release frees the
// rules; in between everybody shares one set. Every member is safe to call
// from any thread; all but Acquire fail while no reference is held.
class RuleManager {
public:
    static RuleManager& Instance();

    // Takes a reference. False when the first load fails (nothing held).
    bool Acquire();
    bool Release();

    // Re-reads the file; the rules stay as they were on failure.
    bool Reload();
    bool Write() const;
    std::optional<std::size_t> Count() const;

    // A copy of the rules; null without a reference.
    std::optional<std::vector<SpamRule>> Rules() const;
    // Replaces the rules; false without a reference.
    bool SetRules(std::vector<SpamRule> rules);

    // The action of the first rule that is on and matches message.
    std::optional<RuleAction> Apply(const MailMessage& message) const;

private:
    RuleManager() = default;

    mutable std::mutex m_mutex;
    int m_references = 0;
    std::string m_filePath;  // fixed by the first Acquire
    std::vector<SpamRule> m_rules;
};

}  // namespace q9msgflt
