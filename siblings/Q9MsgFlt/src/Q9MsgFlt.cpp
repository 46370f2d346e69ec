// The C border of the library: every call goes to the one RuleManager and
// no exception leaves it.

#include "Q9MsgFlt.h"

#include <QString>

#include "MailMessage.h"
#include "RuleEditor.h"
#include "RuleManager.h"

using q9msgflt::RuleManager;

extern "C" {

int32_t Q9MsgFltAPI_InitManager(void) {
    try {
        return RuleManager::Instance().Acquire() ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

int32_t Q9MsgFltAPI_ReleaseManager(void) {
    try {
        return RuleManager::Instance().Release() ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

int32_t Q9MsgFltAPI_DoProperty(void) {
    try {
        auto& manager = RuleManager::Instance();
        const auto before = manager.Rules();
        if (!before) return 0;
        const auto after = q9msgflt::RuleEditor::Run(*before);
        if (!after || *after == *before) return 0;
        return manager.SetRules(*after) ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

int32_t PFN_ApplyRules(uint32_t low, uint32_t high) {
    try {
        const auto address = static_cast<uintptr_t>(static_cast<uint64_t>(high) << 32 | low);
        if (address == 0) return Q9MSGFLT_NO_MATCH;
        const auto* text = reinterpret_cast<const char*>(address);
        const auto message = q9msgflt::MailMessage::Parse(QString::fromUtf8(text));
        const auto action = RuleManager::Instance().Apply(message);
        return action ? static_cast<int32_t>(*action) : Q9MSGFLT_NO_MATCH;
    } catch (...) {
        return Q9MSGFLT_NO_MATCH;
    }
}

int32_t Q9MsgFltAPI_ReloadManager(void) {
    try {
        return RuleManager::Instance().Reload() ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

int32_t Q9MsgFltAPI_WriteRules(void) {
    try {
        return RuleManager::Instance().Write() ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

int32_t Q9MsgFltAPI_GetRuleCount(void) {
    try {
        const auto count = RuleManager::Instance().Count();
        return count ? static_cast<int32_t>(*count) : 0;
    } catch (...) {
        return 0;
    }
}

}  // extern "C"
