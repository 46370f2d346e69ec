#include "policy/ConfigurationApply.h"

#include "Q9CfgE.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "policy/PolicyMerge.h"
#include "schedule/ScheduleJobs.h"
#include "session/ApplySwitch.h"
#include "session/DiagLog.h"
#include "session/ProcessState.h"
#include "session/RegistrationBinding.h"
#include "session/SiblingLibs.h"
#include "targets/ExclusionStore.h"

namespace {

// The system monitor's registration option when the caller keeps it.
constexpr int32_t kMonitorOptionKept = 0;

struct SwitchGroup {
    uint32_t wordKey;
    uint32_t maskKey;
    const char* wordName;
    const char* maskName;
};

constexpr SwitchGroup kScanGroup = {CEK_Switch_Scan, CEK_Switch_ScanMask, "CEK_Switch_Scan",
                                    "CEK_Switch_ScanMask"};
constexpr SwitchGroup kMailGroup = {CEK_Switch_ScanMail, CEK_Switch_ScanMailMask,
                                    "CEK_Switch_ScanMail", "CEK_Switch_ScanMailMask"};
constexpr SwitchGroup kGeneralGroup = {CEK_Switch_General, CEK_Switch_GeneralMask,
                                       "CEK_Switch_General", "CEK_Switch_GeneralMask"};

// The functions of each group in the order they are applied.
constexpr int32_t kScanItems[] = {SSCT_Q9SHELLEX,    SSCT_Q9BAR,         SSCT_SYSTEM_MONITOR,
                                  SSCT_HTTP_PROXY,   SSCT_OFFICE_GUARD,  SSCT_SCRSAVER_SCAN,
                                  SSCT_MESSENGER,    SSCT_START_PROCESS};
constexpr int32_t kMailItems[] = {SSCT_POP3, SSCT_MANUAL_OUTLOOK, SSCT_REALTIME_OUTLOOK};
constexpr int32_t kGeneralItems[] = {SSCT_TRAY, SSCT_MONSYS_AUTO};

struct SwitchWords {
    uint32_t word = 0;
    uint32_t mask = 0;
};

SwitchWords ReadGroup(const SwitchGroup& group) {
    SwitchWords words;
    words.word = Q9CfgE_GetDWEx(CES_Switch, group.wordKey);
    g_Log.Write("CES_Switch, %s, %u", group.wordName, words.word);
    words.mask = Q9CfgE_GetDWEx(CES_Switch, group.maskKey);
    g_Log.Write("CES_Switch, %s, %u", group.maskName, words.mask);
    return words;
}

template <std::size_t N>
void ApplyItems(const SwitchWords& words, const int32_t (&items)[N], int32_t monitorOption) {
    for (const int32_t item : items) {
        const int32_t option = item == SSCT_SYSTEM_MONITOR ? monitorOption : kServiceOption;
        ApplySwitch(words.word, words.mask, SwitchBitOf(item), item, option);
        g_Log.Write("%s", SwitchItemName(item));
    }
}

void MergePolicy(const char* basePath, const char* policyPath) {
    if (!policyPath || !*policyPath) return;
    const std::string target = PolicyTargetPath(basePath);
    if (target.empty()) {
        g_Log.Write("policy not merged: the base path is longer than %zu characters",
                    kMaxPolicyPath);
        return;
    }
    MergePolicyFile(target, policyPath);
}

}  // namespace

void ApplyConfiguration(const char* basePath, const char* policyPath, int32_t monitorFlag) {
    MergePolicy(basePath, policyPath);
    Q9CfgE_SetModified();

    const SwitchWords scan = ReadGroup(kScanGroup);
    const int32_t monitorOption = monitorFlag != 0 ? kServiceOption : kMonitorOptionKept;
    g_Log.Write("After Schedule Scan");
    SyncExclusionZone();
    g_Log.Write("After DMZ");
    ApplyItems(scan, kScanItems, monitorOption);
    ApplyItems(ReadGroup(kMailGroup), kMailItems, kServiceOption);
    ApplyItems(ReadGroup(kGeneralGroup), kGeneralItems, kServiceOption);

    WriteScheduleJobs(PlanScheduleJobs(g_bWinNT != 0));
    g_Siblings.ServiceControl(SC_SetCfgChanged, SSCT_SYSTEM_MONITOR, kServiceOption);
}
