#include "policy/PolicySwitches.h"

#include "Q9CfgE.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"

namespace {

constexpr int32_t kScanItems[] = {SSCT_Q9SHELLEX,  SSCT_Q9BAR,        SSCT_SYSTEM_MONITOR,
                                  SSCT_HTTP_PROXY, SSCT_OFFICE_GUARD, SSCT_SCRSAVER_SCAN,
                                  SSCT_MESSENGER,  SSCT_START_PROCESS};
constexpr int32_t kMailItems[] = {SSCT_POP3, SSCT_MANUAL_OUTLOOK, SSCT_REALTIME_OUTLOOK};
constexpr int32_t kGeneralItems[] = {SSCT_TRAY, SSCT_MONSYS_AUTO};

constexpr PolicySwitchGroup kGroups[] = {
    {CEK_Switch_Scan, CEK_Switch_ScanMask, "CEK_Switch_Scan", "CEK_Switch_ScanMask", kScanItems},
    {CEK_Switch_ScanMail, CEK_Switch_ScanMailMask, "CEK_Switch_ScanMail",
     "CEK_Switch_ScanMailMask", kMailItems},
    {CEK_Switch_General, CEK_Switch_GeneralMask, "CEK_Switch_General", "CEK_Switch_GeneralMask",
     kGeneralItems},
};

}  // namespace

std::span<const PolicySwitchGroup> PolicySwitchGroups() { return kGroups; }

PolicySwitchWords ReadSwitchWords(const PolicySwitchGroup& group) {
    return {Q9CfgE_GetDWEx(CES_Switch, group.wordKey), Q9CfgE_GetDWEx(CES_Switch, group.maskKey)};
}
