#pragma once

// Addresses of the configuration store: every option lives in a section (which
// function of the product) under a key (which value in it). A key number means
// the same thing in every section that has it, so a scan profile is read by
// the same keys everywhere.

#include <cstdint>

// Sections.
enum StoreSection : uint32_t {
    CES_General = 0,
    CES_Exclude = 1,
    CES_Macro = 2,
    CES_Authorization = 3,
    CES_SystemScan = 4,
    CES_ExplorerScan = 5,
    CES_ScreenSaver = 6,
    CES_SystemMonitor = 7,
    CES_Pop3 = 8,
    CES_Internet = 9,
    CES_OutlookScan = 11,
    CES_OutlookMonitor = 12,
    CES_Switch = 14,
    CES_Messenger = 15,
    CES_Startup = 16,
    CES_PortBlock = 17,
    CES_Schedule = 0x10000000,         // or-ed with the entry's index, counted from 0
    CES_ScheduleDefault = 0x10FFFFFF,  // the template of a new schedule entry
};

// Every section in the store's flush.
constexpr uint32_t kAllSections = 0xFFFFFFFF;

// The section of schedule entry index.
constexpr uint32_t ScheduleSection(uint32_t index) { return CES_Schedule | index; }

// Keys. DW: 32-bit word; Str: text; Enc: enciphered text.
enum StoreKey : uint32_t {
    CEK_GeneralOptions = 0,          // DW, 0
    CEK_AlertSound = 1,              // Str, 0
    CEK_ScanLogSize = 2,             // DW, 0: KB
    CEK_EventLogCount = 3,           // DW, 0
    CEK_BackupSize = 4,              // DW, 0: KB
    CEK_ExcludeEnable = 5,           // DW, 1
    CEK_MacroOptions = 6,            // DW, 2
    CEK_AuthEnabled = 7,             // DW, 3
    CEK_AuthItems = 8,               // DW, 3
    CEK_AuthPassword = 9,            // Enc, 3
    CEK_ScanOptions = 10,            // DW: first scan word
    CEK_ScanArchive = 11,            // DW: archive options
    CEK_ScanArchiveKinds = 12,       // DW: archive kinds, -1 all
    CEK_ScanExtensions = 13,         // Str: customized extension list
    CEK_MonitorOptions = 14,         // DW, 7, 8, 12
    CEK_MonitorText = 15,            // Str, 7, 8, 12
    CEK_ScanPolicy = 16,             // DW: repair policy word
    CEK_WarnMailOptions = 21,        // DW, 8, 11, 12
    CEK_WarnMailServer = 23,         // Str, 8, 11, 12
    CEK_WarnMailFrom = 24,           // Str, 8, 11, 12
    CEK_WarnMailPort = 25,           // DW, 8, 11, 12
    CEK_Pop3Port = 26,               // DW, 8
    CEK_Pop3Options = 30,            // DW, 8
    CEK_SchedOn = 32,                // DW, schedule
    CEK_SchedStyle = 33,             // DW, schedule
    CEK_SchedYear = 34,              // DW, schedule
    CEK_SchedMonth = 35,             // DW, schedule
    CEK_SchedDay = 36,               // DW, schedule
    CEK_SchedDayOfWeek = 37,         // DW, schedule
    CEK_SchedHour = 38,              // DW, schedule
    CEK_SchedMinute = 39,            // DW, schedule
    CEK_SchedCmdLine = 40,           // Str, schedule
    CEK_SchedCurDir = 41,            // Str, schedule: the entry exists while this is not empty
    CEK_Switch_Scan = 42,            // DW, 14
    CEK_Switch_ScanMask = 43,        // DW, 14
    CEK_Switch_ScanMail = 44,        // DW, 14
    CEK_Switch_ScanMailMask = 45,    // DW, 14
    CEK_Switch_General = 46,         // DW, 14
    CEK_Switch_GeneralMask = 47,     // DW, 14
    CEK_EventOptions = 48,           // DW, 0
    CEK_ExcludeText = 49,            // Str, 1
    CEK_ScheduleUser = 50,           // Enc, schedule
    CEK_SchedulePassword = 51,       // Enc, schedule
    CEK_MonitorRestart = 52,         // DW, 7
    CEK_ScanExtra = 53,              // DW, 4, 7, 15, 16: third scan word
    CEK_Pop3Timeout = 54,            // DW, 8
    CEK_Pop3ClientKeepAlive = 55,    // DW, 8
    CEK_Pop3ServerKeepAlive = 57,    // DW, 8
    CEK_ProtectLevel = 59,           // DW, 0: 1, 2, 4 or 8
    CEK_SpamOptions = 60,            // DW, 8, 11, 12
    CEK_MessengerSelect = 61,        // DW, 15
    CEK_HomeAlarm = 62,              // DW, 0
    CEK_PortBlockEnable = 63,        // DW, 17
    CEK_PortBlockMode = 64,          // DW, 17
    CEK_PortBlockExempt = 65,        // DW, 17
    CEK_PortBlockShowMessages = 66,  // DW, 17
    CEK_PortBlockLogSize = 67,       // DW, 17: KB
    CEK_PortBlockLogLimit = 68,      // DW, 17
};

// The key of SetStrEx that stands for the section's object list.
constexpr uint32_t kObjectListKey = 0xFFFFFFFF;
