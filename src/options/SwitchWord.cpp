#include "options/SwitchWord.h"

#include <Q9CfgE.h>

#include <array>

#include "options/StoreKeys.h"
#include "q9cfgul.h"

namespace {

constexpr uint32_t kEveryBit = 0xFFFFFFFF;

constexpr std::array<SwitchItem, 15> kSwitchItems = {{
    {SSCT_Q9SHELLEX, "SSCT_Q9SHELLEX", 0x10, CES_Switch, CEK_Switch_Scan},
    {SSCT_Q9BAR, "SSCT_Q9BAR", 0x20, CES_Switch, CEK_Switch_Scan},
    {SSCT_SCRSAVER_SCAN, "SSCT_SCRSAVER_SCAN", 0x8, CES_Switch, CEK_Switch_Scan},
    {SSCT_SYSTEM_MONITOR, "SSCT_SYSTEM_MONITOR", 0x1, CES_Switch, CEK_Switch_Scan},
    {SSCT_HTTP_PROXY, "SSCT_HTTP_PROXY", 0x2, CES_Switch, CEK_Switch_Scan},
    {SSCT_POP3, "SSCT_POP3", 0x1000, CES_Switch, CEK_Switch_ScanMail},
    {kUnnamedMailItem, "", 0x2000, CES_Switch, CEK_Switch_ScanMail},
    {SSCT_OFFICE_GUARD, "SSCT_OFFICE_GUARD", 0x4, CES_Switch, CEK_Switch_Scan},
    {SSCT_TRAY, "SSCT_TRAY", 0x100000, CES_Switch, CEK_Switch_General},
    {SSCT_MONSYS_AUTO, "SSCT_MONSYS_AUTO", 0x200000, CES_Switch, CEK_Switch_General},
    {SSCT_MESSENGER, "SSCT_MESSENGER", 0x40, CES_Switch, CEK_Switch_Scan},
    {SSCT_START_PROCESS, "SSCT_START_PROCESS", 0x80, CES_Switch, CEK_Switch_Scan},
    {SSCT_MANUAL_OUTLOOK, "SSCT_MANUAL_OUTLOOK", 0x4000, CES_Switch, CEK_Switch_ScanMail},
    {SSCT_REALTIME_OUTLOOK, "SSCT_REALTIME_OUTLOOK", 0x8000, CES_Switch, CEK_Switch_ScanMail},
    {kPortBlockItem, "", kPortBlockBit, CES_PortBlock, CEK_PortBlockEnable},
}};

}  // namespace

const SwitchItem* FindSwitchItem(int32_t code) {
    for (const SwitchItem& item : kSwitchItems) {
        if (item.code == code) return &item;
    }
    return nullptr;
}

uint32_t SwitchBitOf(int32_t code) {
    const SwitchItem* item = FindSwitchItem(code);
    return item ? item->bit : kNoSwitchBit;
}

const char* SwitchItemName(int32_t code) {
    const SwitchItem* item = FindSwitchItem(code);
    return item ? item->name : "";
}

int32_t StoredSwitchState(int32_t code) {
    const SwitchItem* item = FindSwitchItem(code);
    if (!item) return 0;
    const uint32_t value = Q9CfgE_GetDWEx(item->section, item->key);
    // Port blocking is a whole word that is on when not 0, not a bit.
    if (item->bit == kPortBlockBit) return value != 0 ? 1 : 0;
    return (value & item->bit) != 0 ? 1 : 0;
}

std::optional<uint32_t> SwitchKeyOfBit(uint32_t bit) {
    if (bit >= 0x1 && bit <= 0x80) return CEK_Switch_Scan;
    if (bit >= 0x1000 && bit <= 0x8000) return CEK_Switch_ScanMail;
    if (bit == 0x100000 || bit == 0x200000) return CEK_Switch_General;
    return std::nullopt;
}

void SetSwitchBit(uint32_t bit, bool on) {
    const std::optional<uint32_t> key = SwitchKeyOfBit(bit);
    if (!key) return;
    const uint32_t word = Q9CfgE_GetDWEx(CES_Switch, *key);
    Q9CfgE_SetDWEx(CES_Switch, *key, on ? (word | bit) : (word & ~bit));
}

SwitchMasks PageSwitchMasks(uint32_t flags) {
    SwitchMasks masks;
    if ((flags & DMF_IsLight) != 0) {
        masks.scan = 1;
        return masks;
    }
    masks.scan = kEveryBit;
    if ((flags & DMF_RemovePopMon) != 0) {
        masks.scanMail = 0xC000;
    } else if ((flags & DMF_RemoveOutlookMon) != 0) {
        masks.scanMail = 0x1000;
    } else {
        masks.scanMail = kEveryBit;
    }
    return masks;
}

SwitchMasks WizardSwitchMasks(uint32_t flags) {
    SwitchMasks masks = PageSwitchMasks(flags);
    masks.general = kEveryBit;
    if ((flags & DMF_IsLight) != 0) {
        masks.scanMail = 0;
    } else if ((flags & DMF_RemoveInternetMon) != 0) {
        masks.scan = 0xFFFFFFFD;
    }
    return masks;
}

void WriteSwitchMasks(const SwitchMasks& masks) {
    if (masks.scan) Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_ScanMask, *masks.scan);
    if (masks.scanMail) Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_ScanMailMask, *masks.scanMail);
    if (masks.general) Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_GeneralMask, *masks.general);
}

namespace {

constexpr uint32_t kSystemMonitorBit = 0x1;
constexpr uint32_t kInternetMonitorBit = 0x2;
// The bit of a monitor's scan word that says its monitoring is in force.
constexpr uint32_t kMonitorRunsBit = 0x10000;

void StopMonitorScan(uint32_t section) {
    const uint32_t options = Q9CfgE_GetDWEx(section, CEK_ScanOptions);
    Q9CfgE_SetDWEx(section, CEK_ScanOptions, options & ~kMonitorRunsBit);
}

}  // namespace

void WriteLightEditionSwitches() {
    Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_Scan, kSystemMonitorBit);
    Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_ScanMask, kSystemMonitorBit);
    Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_ScanMail, 0);
    Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_ScanMailMask, 0);
    for (const uint32_t section : {CES_Internet, CES_Messenger, CES_Startup}) {
        StopMonitorScan(section);
    }
}

void WriteScanSwitches(uint32_t word, uint32_t flags) {
    if ((flags & DMF_RemoveInternetMon) == 0) {
        Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_Scan, word);
        Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_ScanMask, kEveryBit);
        return;
    }
    Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_Scan, word & ~kInternetMonitorBit);
    Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_ScanMask, ~kInternetMonitorBit);
    StopMonitorScan(CES_Internet);
}
