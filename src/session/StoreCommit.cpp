#include "session/StoreCommit.h"

#include <Q9CfgE.h>

#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "platform/Registry.h"
#include "session/DiagLog.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"

namespace {

// The running services hear of every change under the system monitor's code,
// whatever changed.
constexpr int32_t kConfigChangedItem = SSCT_SYSTEM_MONITOR;

}  // namespace

void BeginStoreEdit() {
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
    // Opening a key reads the hive; a damaged one is reported as it is read.
    platform::RegKey software = nullptr;
    if (platform::RegOpenKey(platform::LocalMachine(), "Software", platform::kKeyRead, &software) ==
        platform::kSuccess) {
        platform::RegCloseKey(software);
    }
}

bool CommitWorkingCopy() {
    Q9CfgE_UnlockEx();
    if (Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1) == 1) return true;
    g_Log.Write("the configuration could not be saved; the changes are kept");
    return false;
}

void DropWorkingCopy() { Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN); }

void AnnounceCommit() {
    Q9CfgE_SetDWEx(CES_General, CEK_ProtectLevel, g_nProtectLevel);
    g_Siblings.ServiceControl(SC_SetCfgChanged, kConfigChangedItem, kServiceOption);
}
