#include "options/StoreKeyNames.h"

#include <cstdio>
#include <utility>

#include "options/StoreKeys.h"

namespace {

#define Q9_NAMED(name) {name, #name}

constexpr std::pair<uint32_t, const char*> kSectionNames[] = {
    Q9_NAMED(CES_General),
    Q9_NAMED(CES_Exclude),
    Q9_NAMED(CES_Macro),
    Q9_NAMED(CES_Authorization),
    Q9_NAMED(CES_SystemScan),
    Q9_NAMED(CES_ExplorerScan),
    Q9_NAMED(CES_ScreenSaver),
    Q9_NAMED(CES_SystemMonitor),
    Q9_NAMED(CES_Pop3),
    Q9_NAMED(CES_Internet),
    Q9_NAMED(CES_OutlookScan),
    Q9_NAMED(CES_OutlookMonitor),
    Q9_NAMED(CES_Switch),
    Q9_NAMED(CES_Messenger),
    Q9_NAMED(CES_Startup),
    Q9_NAMED(CES_PortBlock),
    Q9_NAMED(CES_ScheduleDefault),
};

constexpr std::pair<uint32_t, const char*> kKeyNames[] = {
    Q9_NAMED(CEK_GeneralOptions),
    Q9_NAMED(CEK_AlertSound),
    Q9_NAMED(CEK_ScanLogSize),
    Q9_NAMED(CEK_EventLogCount),
    Q9_NAMED(CEK_BackupSize),
    Q9_NAMED(CEK_ExcludeEnable),
    Q9_NAMED(CEK_MacroOptions),
    Q9_NAMED(CEK_AuthEnabled),
    Q9_NAMED(CEK_AuthItems),
    Q9_NAMED(CEK_AuthPassword),
    Q9_NAMED(CEK_ScanOptions),
    Q9_NAMED(CEK_ScanArchive),
    Q9_NAMED(CEK_ScanArchiveKinds),
    Q9_NAMED(CEK_ScanExtensions),
    Q9_NAMED(CEK_MonitorOptions),
    Q9_NAMED(CEK_MonitorText),
    Q9_NAMED(CEK_ScanPolicy),
    Q9_NAMED(CEK_WarnMailOptions),
    Q9_NAMED(CEK_WarnMailServer),
    Q9_NAMED(CEK_WarnMailFrom),
    Q9_NAMED(CEK_WarnMailPort),
    Q9_NAMED(CEK_Pop3Port),
    Q9_NAMED(CEK_Pop3Options),
    Q9_NAMED(CEK_SchedOn),
    Q9_NAMED(CEK_SchedStyle),
    Q9_NAMED(CEK_SchedYear),
    Q9_NAMED(CEK_SchedMonth),
    Q9_NAMED(CEK_SchedDay),
    Q9_NAMED(CEK_SchedDayOfWeek),
    Q9_NAMED(CEK_SchedHour),
    Q9_NAMED(CEK_SchedMinute),
    Q9_NAMED(CEK_SchedCmdLine),
    Q9_NAMED(CEK_SchedCurDir),
    Q9_NAMED(CEK_Switch_Scan),
    Q9_NAMED(CEK_Switch_ScanMask),
    Q9_NAMED(CEK_Switch_ScanMail),
    Q9_NAMED(CEK_Switch_ScanMailMask),
    Q9_NAMED(CEK_Switch_General),
    Q9_NAMED(CEK_Switch_GeneralMask),
    Q9_NAMED(CEK_EventOptions),
    Q9_NAMED(CEK_ExcludeText),
    Q9_NAMED(CEK_ScheduleUser),
    Q9_NAMED(CEK_SchedulePassword),
    Q9_NAMED(CEK_MonitorRestart),
    Q9_NAMED(CEK_ScanExtra),
    Q9_NAMED(CEK_Pop3Timeout),
    Q9_NAMED(CEK_Pop3ClientKeepAlive),
    Q9_NAMED(CEK_Pop3ServerKeepAlive),
    Q9_NAMED(CEK_ProtectLevel),
    Q9_NAMED(CEK_SpamOptions),
    Q9_NAMED(CEK_MessengerSelect),
    Q9_NAMED(CEK_HomeAlarm),
    Q9_NAMED(CEK_PortBlockEnable),
    Q9_NAMED(CEK_PortBlockMode),
    Q9_NAMED(CEK_PortBlockExempt),
    Q9_NAMED(CEK_PortBlockShowMessages),
    Q9_NAMED(CEK_PortBlockLogSize),
    Q9_NAMED(CEK_PortBlockLogLimit),
};

#undef Q9_NAMED

template <std::size_t N>
const char* FindName(const std::pair<uint32_t, const char*> (&table)[N], uint32_t number) {
    for (const auto& [value, name] : table) {
        if (value == number) return name;
    }
    return nullptr;
}

bool IsScheduleEntry(uint32_t section) {
    return (section & 0xFF000000) == CES_Schedule && section != CES_ScheduleDefault;
}

}  // namespace

std::string StoreSectionName(uint32_t section) {
    if (const char* name = FindName(kSectionNames, section)) return name;
    if (IsScheduleEntry(section)) return "schedule entry " + std::to_string(section & 0xFFFFFF);
    char number[16];
    std::snprintf(number, sizeof number, "0x%x", section);
    return number;
}

std::string StoreKeyName(uint32_t key) {
    if (key == kObjectListKey) return "object list";
    if (const char* name = FindName(kKeyNames, key)) return name;
    return std::to_string(key);
}
