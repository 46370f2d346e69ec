#include "session/ProcessState.h"

#include "platform/HostVersion.h"
#include "platform/ModuleDirectory.h"

int32_t g_bWinNT = 0;
int32_t g_bWinMeOrLater = 0;
int32_t g_bWin2000 = 0;
int32_t g_bWinXPOrLater = 0;
std::string g_szModuleDir;
uint32_t g_nProtectLevel = 8;
uint32_t g_nPop3Port = 110;
int32_t g_bLevelApplied = 0;
int32_t g_bLevelPending = 0;
int32_t g_bScheduleDirty = 0;
int32_t g_bInWizard = 0;
int32_t g_nMasterType = 0;
// Defined after g_szModuleDir, so that it goes before it at exit.
MailAccounts g_Pop3Accounts;

void InitProcessState() {
    const platform::HostFlags flags = platform::FlagsFor(platform::DetectHostVersion());
    g_bWinNT = flags.winNT;
    g_bWinMeOrLater = flags.winMeOrLater;
    g_bWin2000 = flags.win2000;
    g_bWinXPOrLater = flags.winXPOrLater;
    g_szModuleDir = platform::ModuleDirectory();
}
