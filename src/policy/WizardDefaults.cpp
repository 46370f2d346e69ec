#include "policy/WizardDefaults.h"

#include <initializer_list>
#include <vector>

#include "Q9CfgE.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "q9cfgul.h"
#include "session/RegistrationBinding.h"
#include "session/SiblingLibs.h"
#include "session/StoreCommit.h"

namespace {

constexpr uint32_t kEveryBit = 0xFFFFFFFF;
// The scan functions a full edition starts with: system monitoring,
// internet monitoring and the four of 0x10 to 0x80.
constexpr uint32_t kDefaultScanWord = 0xF3;
// Both general functions (the tray and automatic system monitoring).
constexpr uint32_t kDefaultGeneralWord = 0x300000;

void SetWord(uint32_t key, uint32_t value) { Q9CfgE_SetDWEx(CES_Switch, key, value); }

bool CanRun(int32_t item) {
    return g_Siblings.ServiceControl(SC_CanBeRegister, item, kServiceOption) != 0;
}

void Register(int32_t item) { g_Siblings.ServiceControl(SC_Register, item, kServiceOption); }

// Registers item when this system can run it; whether it could.
bool TryRegister(int32_t item) {
    if (!CanRun(item)) return false;
    Register(item);
    return true;
}

void TryRegisterAll(std::initializer_list<int32_t> items) {
    for (const int32_t item : items) TryRegister(item);
}

// What the edition has of the mail functions: its mask, the functions to
// stop and the ones to start.
struct MailPlan {
    uint32_t mask;
    std::vector<int32_t> stopped;
    std::vector<int32_t> tried;
};

MailPlan MailPlanFor(uint32_t flags) {
    const bool noPop3 = (flags & DMF_RemovePopMon) != 0;
    const bool noOutlook = (flags & DMF_RemoveOutlookMon) != 0;
    if ((flags & DMF_Master) || (noPop3 && noOutlook)) {
        return {0, {SSCT_POP3, SSCT_MANUAL_OUTLOOK, SSCT_REALTIME_OUTLOOK}, {}};
    }
    if (noPop3) return {0xC000, {SSCT_POP3}, {SSCT_MANUAL_OUTLOOK, SSCT_REALTIME_OUTLOOK}};
    if (noOutlook) return {0x1000, {SSCT_MANUAL_OUTLOOK, SSCT_REALTIME_OUTLOOK}, {SSCT_POP3}};
    return {kEveryBit, {}, {SSCT_POP3, SSCT_MANUAL_OUTLOOK, SSCT_REALTIME_OUTLOOK}};
}

// The mail word holds the bits of the functions that could be started.
void SetMailSwitches(uint32_t flags) {
    const MailPlan plan = MailPlanFor(flags);
    SetWord(CEK_Switch_ScanMailMask, plan.mask);
    for (const int32_t item : plan.stopped) {
        g_Siblings.ServiceControl(SC_Unregister, item, kServiceOption);
    }
    uint32_t word = 0;
    for (const int32_t item : plan.tried) {
        if (TryRegister(item)) word |= SwitchBitOf(item);
    }
    SetWord(CEK_Switch_ScanMail, word);
}

void SetFullEditionSwitches(uint32_t flags) {
    WriteScanSwitches(kDefaultScanWord, flags);
    SetMailSwitches(flags);
    TryRegisterAll({SSCT_Q9SHELLEX, SSCT_Q9BAR});
    TryRegisterAll({SSCT_MESSENGER, SSCT_START_PROCESS});
}

}  // namespace

void ApplyWizardDefaults(uint32_t flags) {
    DropWorkingCopy();
    if (flags & DMF_IsLight) {
        WriteLightEditionSwitches();
    } else {
        SetFullEditionSwitches(flags);
    }
    SetWord(CEK_Switch_General, kDefaultGeneralWord);
    SetWord(CEK_Switch_GeneralMask, kEveryBit);
    TryRegister(SSCT_SYSTEM_MONITOR);
    Register(SSCT_TRAY);
    Register(SSCT_MONSYS_AUTO);
    g_Siblings.ServiceControl(SC_SetCfgChanged, SSCT_SYSTEM_MONITOR, kServiceOption);
}
