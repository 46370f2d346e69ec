#include "session/MessengerBinding.h"

#include "session/ProcessState.h"

int32_t MessengerBinding::Load() { return m_library.Load(g_szModuleDir, "Q9IMcfg") ? 1 : 0; }

void MessengerBinding::Release() { m_library.Release(); }

int32_t MessengerBinding::IsInstalled(int32_t index) {
    Load();
    return m_library.CallOr<int32_t(int32_t)>(0, "GetIMInstall", index);
}
