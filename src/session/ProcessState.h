#pragma once

// State of the process that every part of the library reads. Set at library
// start (host flags, module directory) or by the entry points; lives until the
// library is unloaded.

#include <cstdint>
#include <string>

#include "session/MailAccounts.h"

// The host's version flags (see platform/HostVersion.h for what they mean on
// this platform).
extern int32_t g_bWinNT;
extern int32_t g_bWinMeOrLater;
extern int32_t g_bWin2000;
extern int32_t g_bWinXPOrLater;

// The library's directory, ending in '/'. Every sibling library and data file
// is looked for here.
extern std::string g_szModuleDir;

// Working copy of the protection level (1, 2, 4 or 8); 8 before any session.
extern uint32_t g_nProtectLevel;
// The POP3 port as it stood at session start; 110 before any session.
extern uint32_t g_nPop3Port;

// Cleared at every entry; set by the protection level and schedule pages.
extern int32_t g_bLevelApplied;
extern int32_t g_bLevelPending;
extern int32_t g_bScheduleDirty;

// 1 while the wizard runs.
extern int32_t g_bInWizard;
// 2 when the master edition came from the secure profile, else 0.
extern int32_t g_nMasterType;
// The mail account object of the session; empty outside a session.
extern MailAccounts g_Pop3Accounts;

// Sets the host flags from the host's version and g_szModuleDir from the
// library's location. Called once at library start.
void InitProcessState();
