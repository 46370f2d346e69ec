#include "policy/ConfigurationApply.h"

#include "Q9CfgE.h"
#include "options/SwitchWord.h"
#include "policy/PolicyMerge.h"
#include "policy/PolicySwitches.h"
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

PolicySwitchWords ReadAndLog(const PolicySwitchGroup& group) {
    const PolicySwitchWords words = ReadSwitchWords(group);
    g_Log.Write("CES_Switch, %s, %u", group.wordName, words.word);
    g_Log.Write("CES_Switch, %s, %u", group.maskName, words.mask);
    return words;
}

void ApplyGroup(const PolicySwitchGroup& group, const PolicySwitchWords& words,
                int32_t monitorOption) {
    for (const int32_t item : group.items) {
        const int32_t option = item == SSCT_SYSTEM_MONITOR ? monitorOption : kServiceOption;
        ApplySwitch(words.word, words.mask, SwitchBitOf(item), item, option);
        g_Log.Write("%s", SwitchItemName(item));
    }
}

void MergePolicy(const char* basePath, const char* policyPath) {
    if (!policyPath || !*policyPath) return;
    const std::string target = PolicyTargetPath(basePath, g_szModuleDir);
    if (target.empty()) {
        g_Log.Write("policy not merged: the base path is longer than %zu characters",
                    kMaxPolicyPath);
        return;
    }
    if (PolicyTooLarge(policyPath)) {
        g_Log.Write("policy not merged: the file is larger than %ju bytes", kMaxPolicyBytes);
        return;
    }
    MergePolicyFile(target, policyPath);
}

}  // namespace

void ApplyConfiguration(const char* basePath, const char* policyPath, int32_t monitorFlag) {
    MergePolicy(basePath, policyPath);
    Q9CfgE_SetModified();

    const auto groups = PolicySwitchGroups();
    const PolicySwitchWords scan = ReadAndLog(groups[0]);
    const int32_t monitorOption = monitorFlag != 0 ? kServiceOption : kMonitorOptionKept;
    g_Log.Write("After Schedule Scan");
    SyncExclusionZone();
    g_Log.Write("After DMZ");
    ApplyGroup(groups[0], scan, monitorOption);
    for (std::size_t i = 1; i < groups.size(); ++i) {
        ApplyGroup(groups[i], ReadAndLog(groups[i]), monitorOption);
    }

    WriteScheduleJobs(PlanScheduleJobs(g_bWinNT != 0));
    g_Siblings.ServiceControl(SC_SetCfgChanged, SSCT_SYSTEM_MONITOR, kServiceOption);
}
