#include "session/RegistrationBinding.h"

#include <cerrno>

#include "session/ProcessState.h"

namespace {

// The entry point of the ops that pass the item alone.
const char* ItemEntryOf(int32_t op) {
    switch (op) {
        case SC_IsRegistered: return "Q9SSCtrl_IsRegistered";
        case SC_Register: return "Q9SSCtrl_Register";
        case SC_SetCfgChanged: return "Q9SSCtrl_SetCfgChanged";
        default: return "Q9SSCtrl_CanBeRegister";
    }
}

}  // namespace

int32_t RegistrationBinding::Load() { return m_library.Load(g_szModuleDir, "Q9SSCtrl") ? 1 : 0; }

void RegistrationBinding::Release() { m_library.Release(); }

int32_t RegistrationBinding::Control(int32_t op, int32_t item, int32_t option) {
    if (!Load()) {
        m_lastError = ENOENT;
        return 0;
    }
    errno = 0;
    const int32_t answer =
        op == SC_Unregister
            ? m_library.CallOr<int32_t(int32_t, int32_t, int32_t)>(
                  0, "Q9SSCtrl_Unregister", item, kUnregisterTimeoutMs, option)
            : m_library.CallOr<int32_t(int32_t)>(0, ItemEntryOf(op), item);
    m_lastError = errno;
    return answer;
}

int32_t RegistrationBinding::HasEnoughPrivilege() {
    Load();
    return m_library.CallOr<int32_t()>(0, "Q9SSCtrl_HasEnoughPrivilege");
}
