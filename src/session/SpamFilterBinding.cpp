#include "session/SpamFilterBinding.h"

#include "session/ProcessState.h"

int32_t SpamFilterBinding::Load() { return m_library.Load(g_szModuleDir, "Q9MsgFlt") ? 1 : 0; }

void SpamFilterBinding::Release() { m_library.Release(); }

int32_t SpamFilterBinding::InitManager() { return CallManager("Q9MsgFltAPI_InitManager"); }

int32_t SpamFilterBinding::ReleaseManager() { return CallManager("Q9MsgFltAPI_ReleaseManager"); }

int32_t SpamFilterBinding::DoProperty() { return CallManager("Q9MsgFltAPI_DoProperty"); }

int32_t SpamFilterBinding::ApplyRules(uint32_t low, uint32_t high) {
    Load();
    return m_library.CallOr<int32_t(uint32_t, uint32_t)>(0, "PFN_ApplyRules", low, high);
}

int32_t SpamFilterBinding::ReloadManager() { return CallManager("Q9MsgFltAPI_ReloadManager"); }

int32_t SpamFilterBinding::WriteRules() { return CallManager("Q9MsgFltAPI_WriteRules"); }

int32_t SpamFilterBinding::RuleCount() { return CallManager("Q9MsgFltAPI_GetRuleCount"); }

int32_t SpamFilterBinding::CallManager(const char* entryPoint) {
    Load();
    return m_library.CallOr<int32_t()>(0, entryPoint);
}
